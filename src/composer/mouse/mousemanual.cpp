// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/mousemanual.h"

#include "composer/composer_editor.h"
#include "composer/mouse/coordinates.h"
#include "composer/mouse/mouse_lists.h"
#include "composer/mouse/mouse_programs.h"
#include "composer/pages/page_fields.h"
#include "composer/wizards/lesson_frame.h"
#include "platform/dialogs.h"
#include "platform/window_places.h"
#include "ui_mousemanual.h"

#include <QShortcut>

namespace zeph {

namespace {

constexpr LessonPage introduction = {
    u"Mouse statements from numbers", u"Wizards/mouse-manual.html",
    u"The mouse goes to a place, goes on from where it is, or turns a switch",
    u"Wizards/mouse-choice.svg"
};

Refusal nothingHere()
{
    return {
        u"You're joking, right?!"_s,
        u"You're having me on aren't you? Really, now what would you like me to insert into "
        "your joystick file from this introduction? How does every third word grab you? :)"_s
    };
}

} // namespace

MouseManual::MouseManual(const Context &context, Documents &documents, ComposerEditor &editor,
                         QWidget *parent)
    : QDialog(parent, Qt::Window), m_context(context), m_documents(documents),
      m_inserter(context, documents, editor), m_ui(std::make_unique<Ui::MouseManual>())
{
    m_ui->setupUi(this);
    m_ui->layoutIntroduction->addWidget(
        new LessonFrame(context, introduction, DocumentKind::Joystick, Introduction, this));
    giveRoomForStatement(*m_ui->LBL_MouseStatement);
    FillFields();
    Dialogs &dialogs = m_context.dialogs;
    whenEdited(*this, this, guarded(dialogs, [this] { refresh(); }));
    connect(m_ui->SSTab1, &QTabWidget::currentChanged, this,
            guarded(dialogs, [this](int) { refresh(); }));
    connect(m_ui->Command1, &QPushButton::clicked, this,
            guarded(dialogs, [this](bool) { Command1_Click(); }));
    auto *help = new QShortcut(Qt::Key_F1, this);
    connect(help, &QShortcut::activated, this, [this] { Q_EMIT helpWanted(mouseHelpTopic); });
    connect(m_ui->CommandClose, &QPushButton::clicked, this, &MouseManual::reject);
    refresh();
    if (parent) {
        openBeside(*this, *parent->window());
    }
}

MouseManual::~MouseManual() = default;

void MouseManual::showTab(int tab)
{
    m_ui->SSTab1->setCurrentIndex(tab > 0 && tab <= Rotate ? tab : Introduction);
}

void MouseManual::FillFields()
{
    nameBox(*m_ui->ComboScreenRes, u"Resolution of the game"_s);
    fillResolutions(*m_ui->ComboScreenRes, {});
    fillList(*m_ui->ComboOrigin_0, mouseOrigins);
    fillList(*m_ui->ComboOrigin_1, mouseOrigins);
    fillSteps(*m_ui->ComboSteps, 1);
}

void MouseManual::Command1_Click()
{
    if (!m_documents.refuseProtected()) {
        m_inserter.insertComposed(statement());
    }
}

Generated MouseManual::statement() const
{
    switch (m_ui->SSTab1->currentIndex()) {
    case Resolution:
        return screenResolution(m_ui->ComboScreenRes->currentText());
    case Place:
        return mouseXY(m_ui->ComboOrigin_0->currentText(), m_ui->Text1_0->text());
    case Move:
        return mouseMove(m_ui->Text1_1->text());
    case Rotate:
        return mouseRotate({ m_ui->ComboOrigin_1->currentText(), m_ui->Text1_2->text(),
                             m_ui->Text1_3->text(), m_ui->Text1_4->text(), m_ui->RTB_Macro->text(),
                             directionWord(m_ui->OPT_Clockwise->isChecked()), m_ui->Text1_5->text(),
                             m_ui->ComboSteps->currentText() });
    default:
        return Unexpected<Refusal>(nothingHere());
    }
}

void MouseManual::refresh()
{
    const Generated made = statement();
    m_ui->PaneStatement->setVisible(made.has_value());
    m_ui->LBL_MouseStatement->setText(made ? made->text().trimmed() : QString());
}

} // namespace zeph
