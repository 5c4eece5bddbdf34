// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/composerpage.h"

#include "composer/composer_editor.h"
#include "composer/composer_settings.h"
#include "composer/control_pictures.h"
#include "composer/control_search.h"
#include "composer/macro_mirror.h"
#include "composer/statement_inserter.h"
#include "documents/coloured_insert.h"
#include "platform/control_array.h"
#include "platform/dialogs.h"
#include "platform/field_text.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "ui_composerpage.h"

#include <QAbstractButton>
#include <QMenu>
#include <QTextDocument>

namespace zeph {

namespace {

constexpr ControlMenuNames controlMenus{ u"mnuHatPos", u"MnuHatPostion", u"MnuHatCornerPostion",
                                         u"mnuTrigger", u"mnuTriggerStage" };

/// Of what the file has on a control. A tool tip shows the rest.
constexpr int leastLinesTold = 2;

constexpr int usualDelay = 60;
constexpr int usualBlanks = 5;

/// The blanks that a box asks for.
int blanksOf(const QString &text)
{
    const int blanks = wholeOf(text);
    return blanks < 1 ? usualBlanks
                      : std::min(blanks, int(rangeOf(&ComposerSettings::NumberOfBlanks).most));
}

/// Ties a tick to a flag of the settings.
void bind(QCheckBox *box, bool &flag)
{
    box->setChecked(flag);
    QObject::connect(box, &QCheckBox::toggled, box, [&flag](bool on) { flag = on; });
}

} // namespace

ComposerFirstPage::ComposerFirstPage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::ComposerFirstPage>())
{
    m_ui->setupUi(this);
    makeMenus();
    makePictures();
    connectButtons();
    connectMacros();
    auto &settings = parts.context.settings.of<ComposerSettings>();
    bind(m_ui->CheckAlwaysInsert, settings.AlwaysInsert);
    bind(m_ui->CheckMacroAddCR, settings.COMPaddCR);
    bind(m_ui->CheckCopyTicks, settings.COMPMacrosTickedCopy);
    m_ui->Text1_8->setText(QString::number(settings.NumberOfBlanks));
    m_ui->LabelControl->setMinimumHeight(m_ui->LabelControl->fontMetrics().lineSpacing()
                                         * leastLinesTold);
}

ComposerFirstPage::~ComposerFirstPage() = default;

void ComposerFirstPage::enter()
{
    m_ui->SSTabHardware->setFocus();
}

void ComposerFirstPage::windowActivated()
{
    m_pictures->followHandle();
    if (!m_ui->DLYText_0->hasFocus()) {
        showText(*m_ui->DLYText_0, QString::number(m_parts.editor.DefaultDLYvalue()));
    }
}

void ComposerFirstPage::makeMenus()
{
    const auto add = [this](QMenu *to, const QString &name, const QString &caption, auto act) {
        QAction *entry = to->addAction(caption);
        entry->setObjectName(name);
        connect(entry, &QAction::triggered, this,
                guarded(m_parts.context.dialogs, [act](bool) { act(); }));
    };
    mnuRHList = new QMenu(this);
    mnuRHList->setObjectName(u"mnuRHList"_s);
    add(mnuRHList, u"mnuRHListInsert"_s, u"&Insert into Joystick file"_s,
        [this] { insertMacro(m_menuMacro); });
    add(mnuRHList, u"mnuFindInJoyFile"_s, u"&Find in joystick file"_s,
        [this] { m_parts.editor.FindMacroInJF(m_menuMacro); });
    add(mnuRHList, u"mnuRHListEdit"_s, u"&Edit"_s,
        [this] { m_parts.editor.editMacro(m_menuMacro); });
}

void ComposerFirstPage::makePictures()
{
    m_pictures = new ControlPictures(
        m_parts, { m_ui->Picture1_0, m_ui->Picture1_1, m_ui->ComboJoystickHandle },
        m_parts.context.settings.of<ComposerSettings>().AlwaysInsert, controlMenus, this);
    connect(m_pictures, &ControlPictures::told, this, [this](const QString &text) {
        m_ui->LabelControl->setText(text);
        Q_EMIT changed();
    });
}

void ComposerFirstPage::connectButtons()
{
    const auto onClick = [this](QAbstractButton *button, auto act) {
        connect(button, &QAbstractButton::clicked, this,
                guarded(m_parts.context.dialogs, [act](bool) { act(); }));
    };
    const ControlArray<QPushButton> slashes(this, u"SlashButton"_s);
    for (int i = 0; i < slashes.count(); ++i) {
        onClick(slashes[i], [this, i] { SlashButton_Click(i); });
    }
    onClick(m_ui->DlyRptButtons_0, [this] { DlyRptButtons_Click(0); });
    onClick(m_ui->DlyRptButtons_1, [this] { DlyRptButtons_Click(1); });
    onClick(m_ui->Command7_0, [this] { Command7_Click(0); });
    onClick(m_ui->Command7_1, [this] { Command7_Click(1); });
    onClick(m_ui->CommandREM, [this] { CommandREM_Click(); });
    onClick(m_ui->Command10, [this] { m_ui->RemTextBox->clear(); });
    onClick(m_ui->Command5_2, [this] { m_parts.editor.showCaretLine(); });
    QAction *tumbo = m_parts.editor.action(u"mnuAppsTumbo");
    onClick(m_ui->Command5_0, [tumbo] { tumbo->trigger(); });
    const auto follow = [this, tumbo] {
        m_ui->Command5_0->setEnabled(tumbo->isEnabled());
    };
    connect(tumbo, &QAction::changed, this, follow);
    follow();
    connect(m_ui->DLYText_0, &QLineEdit::editingFinished, this,
            &ComposerFirstPage::DLYText_LostFocus);
    showWhenEdited(m_ui->DLYText_0, &ComposerFirstPage::delay);
    showWhenEdited(m_ui->DLYText_1, &ComposerFirstPage::repeat);
    showWhenEdited(m_ui->RemTextBox, &ComposerFirstPage::remark);
    connect(m_ui->RemTextBox, &QLineEdit::returnPressed, m_ui->CommandREM, &QPushButton::click);
    connect(m_ui->Text1_8, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (wholeOf(text) >= 1) {
            m_parts.context.settings.of<ComposerSettings>().NumberOfBlanks = blanksOf(text);
        }
    });
}

void ComposerFirstPage::connectMacros()
{
    Dialogs &dialogs = m_parts.context.dialogs;
    connect(m_ui->FrameMacros, &MacroMirror::chosen, this,
            guarded(dialogs, [this](const QString &name) { m_parts.editor.ShowMacroKeys(name); }));
    connect(m_ui->FrameMacros, &MacroMirror::findWanted, this,
            guarded(dialogs, [this](const QString &name) { m_parts.editor.FindMacroInJF(name); }));
    connect(m_ui->FrameMacros, &MacroMirror::insertWanted, this,
            guarded(dialogs, [this](const QString &name) { insertMacro(name); }));
    connect(m_ui->FrameMacros, &MacroMirror::menuWanted, this,
            [this](const QString &name, const QPoint &at) { showMacroMenu(name, at); });
}

void ComposerFirstPage::GetHandles()
{
    m_pictures->GetHandles();
}

std::optional<Generated> ComposerFirstPage::current() const
{
    const QString &pointed = m_pictures->pointed();
    if (!pointed.isEmpty()) {
        return plainStatement(buttonStatement(pointed), true);
    }
    return m_edited ? std::optional((this->*m_edited)()) : std::nullopt;
}

bool ComposerFirstPage::isPiece() const
{
    return m_pictures->pointed().isEmpty();
}

Generated ComposerFirstPage::delay() const
{
    return plainStatement(u"DLY("_s + m_ui->DLYText_0->text() + u") "_s, false);
}

Generated ComposerFirstPage::repeat() const
{
    return plainStatement(u"RPT("_s + m_ui->DLYText_1->text() + u") "_s, false);
}

Generated ComposerFirstPage::remark() const
{
    const ColorRef colour = m_parts.context.settings.of<ColourSettings>().RemStatements;
    return Statement{ { { remAndBlank.toString() + m_ui->RemTextBox->text() + u' ', colour } } };
}

void ComposerFirstPage::showWhenEdited(QLineEdit *box, Fragment fragment)
{
    connect(box, &QLineEdit::textEdited, this, [this, fragment] {
        m_edited = fragment;
        Q_EMIT changed();
    });
}

void ComposerFirstPage::SlashButton_Click(int index)
{
    const QString caption = ControlArray<QPushButton>(this, u"SlashButton"_s)[index]->text();
    m_parts.inserter.insertFragment(QString(caption).remove(u'&') + u' ',
                                    m_parts.context.settings.of<ColourSettings>().SlashColour);
}

void ComposerFirstPage::DLYText_LostFocus()
{
    int delay = wholeOf(m_ui->DLYText_0->text());
    if (delay < 1) {
        delay = usualDelay;
        m_ui->DLYText_0->setText(QString::number(delay));
    }
    if (delay != m_parts.editor.DefaultDLYvalue()) {
        m_parts.editor.setDefaultDLYvalue(delay);
    }
}

void ComposerFirstPage::DlyRptButtons_Click(int index)
{
    // A mnemonic runs the button while the box still has the focus.
    DLYText_LostFocus();
    m_parts.inserter.insertIntoSelected(index == 0 ? delay() : repeat());
}

void ComposerFirstPage::Command7_Click(int index)
{
    m_parts.inserter.insertPlain(index == 0 ? u"\n"_s
                                            : QString(blanksOf(m_ui->Text1_8->text()), u' '));
}

void ComposerFirstPage::CommandREM_Click()
{
    m_parts.inserter.insertFragment(remark()->text(),
                                    m_parts.context.settings.of<ColourSettings>().RemStatements);
}

void ComposerFirstPage::insertMacro(const QString &name)
{
    QString text = macroInsertion(m_parts.documents.selected(), name);
    if (m_parts.context.settings.of<ComposerSettings>().COMPaddCR) {
        text += u'\n';
    }
    if (m_parts.inserter.insertPlain(text)) {
        m_parts.editor.TickMacroList(name);
    }
}

void ComposerFirstPage::showMacroMenu(const QString &name, const QPoint &at)
{
    m_menuMacro = name;
    mnuRHList->popup(at);
}

void ComposerFirstPage::CopyMacroList()
{
    m_ui->FrameMacros->CopyMacroList(m_parts.editor.macroGroups());
}

void ComposerFirstPage::showTicks()
{
    m_ui->FrameMacros->showTicks(m_parts.editor.macroGroups());
}

void ComposerFirstPage::selectMacro(const QString &macro)
{
    m_ui->FrameMacros->select(macro);
}

} // namespace zeph
