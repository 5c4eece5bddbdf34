// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/wizard_window.h"

#include "composer/editor_entries.h"
#include "composer/wizards/lesson_frame.h"
#include "platform/dialogs.h"
#include "platform/window_places.h"
#include "ui_wizard_window.h"

#include <QMap>
#include <QPointer>
#include <QShortcut>

namespace zeph {

namespace {

enum Command { Back, Next, End };

constexpr QSize usualSize(720, 560);
/// A wizard's end button says Finish on so many pages.
constexpr int finishPages = 2;

QString fileInWords(const Document &document)
{
    const QString kind = document.kind() == DocumentKind::Macro ? u"macro"_s : u"joystick"_s;
    const QString file = u"Your "_s + kind + u" file in the Editor: "_s + document.name();
    switch (document.state()) {
    case Document::Empty:
        return file + u", still empty"_s;
    case Document::Modified:
        return file + u", not saved yet"_s;
    default:
        return file + u", saved"_s;
    }
}

} // namespace

WizardWindow::WizardWindow(const ComposerParts &parts, const Lesson &lesson, const QString &frames,
                           QWidget *parent)
    : QDialog(parent, Qt::Window), m_parts(parts), m_lesson(lesson),
      m_ui(std::make_unique<Ui::WizardWindow>())
{
    m_ui->setupUi(this);
    setObjectName(lesson.name.toString());
    setWindowTitle(lesson.caption.toString());
    for (const LessonPage &page : lesson.pages) {
        const int number = m_ui->Pages->count();
        auto *made = new LessonFrame(parts.context, page, lesson.kind, number, m_ui->Pages);
        made->setObjectName(frames + u'_' + QString::number(number));
        m_ui->Pages->addWidget(made);
    }
    m_frames = { this, frames };
    m_commands = { this, u"CommandAll"_s };
    m_commands.connect(this, &QPushButton::clicked, [this](int index) { CommandAll_Click(index); });
    auto *help = new QShortcut(Qt::Key_F1, this);
    connect(help, &QShortcut::activated, this, [this] { Q_EMIT helpWanted(m_lesson.topic); });
    m_ui->LabelFile->setVisible(lesson.isWizard);
    const Document &file = parts.documents.of(lesson.kind);
    connect(&file, &Document::renamed, this, &WizardWindow::showFile);
    connect(&file, &Document::stateChanged, this, &WizardWindow::showFile);
    showFile();
    showPage(0);
    resize(usualSize);
    if (parent) {
        openBeside(*this, *parent->window());
    }
}

WizardWindow::~WizardWindow() = default;

int WizardWindow::page() const
{
    return m_ui->Pages->currentIndex();
}

QPushButton *WizardWindow::defaultButton(int) const
{
    return m_commands[Next]->isEnabled() ? m_commands[Next] : m_commands[End];
}

void WizardWindow::showPage(int page)
{
    m_ui->Pages->setCurrentIndex(page);
    m_ui->LabelPage->setText(u"Page %1 of %2"_s.arg(page + 1).arg(m_frames.count()));
    const bool isLast = page == lastPage();
    m_commands[Back]->setEnabled(page > 0);
    m_commands[Next]->setEnabled(!isLast || m_lesson.isWizard);
    m_commands[Next]->setText(isLast && m_lesson.isWizard ? u"C&lose"_s : u"&Next >"_s);
    if (!m_lesson.isWizard) {
        m_commands[End]->setText(u"C&lose"_s);
    } else if (page > lastPage() - finishPages) {
        m_commands[End]->setText(u"&Finish"_s);
    } else {
        m_commands[End]->setText(u"&Cancel"_s);
    }
    defaultButton(page)->setDefault(true);
    if (QWidget *first = firstControl(page)) {
        first->setFocus(Qt::OtherFocusReason);
    } else {
        defaultButton(page)->setFocus(Qt::OtherFocusReason);
    }
}

void WizardWindow::CommandAll_Click(int index)
{
    if (index == Back) {
        showPage(page() - 1);
    } else if (index == Next && page() < lastPage()) {
        showPage(page() + 1);
    } else {
        close();
    }
}

void WizardWindow::addButtons(std::span<const WizardButton> buttons)
{
    QMap<int, QHBoxLayout *> rows;
    for (const WizardButton &each : buttons) {
        QHBoxLayout *&row = rows[each.page];
        if (!row) {
            row = new QHBoxLayout;
            row->addStretch();
            frame(each.page).addWork(row);
        }
        auto *button = new QPushButton(each.caption.toString(), &frame(each.page));
        button->setObjectName(u"BTNinFrame_%1"_s.arg(each.number));
        button->setToolTip(each.tip.toString());
        connect(button, &QPushButton::clicked, this,
                guarded(m_parts.context.dialogs, [this, &each](bool) { runButton(each); }));
        row->addWidget(button);
    }
}

void WizardWindow::runButton(const WizardButton &button)
{
    if (button.isForFile) {
        m_parts.documents.select(m_lesson.kind);
    }
    // A command may wait for a program, and its user close this window meanwhile.
    const QPointer<WizardWindow> self(this);
    if (runEntry(m_parts.editor, m_parts.context.status, button.entry) && self) {
        buttonRun(button.number);
    }
}

void WizardWindow::showFile()
{
    m_ui->LabelFile->setText(fileInWords(m_parts.documents.of(m_lesson.kind)));
}

} // namespace zeph
