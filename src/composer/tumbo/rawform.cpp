// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/rawform.h"

#include "composer/composer_editor.h"
#include "composer/composer_keys.h"
#include "composer/composer_settings.h"
#include "composer/control_pictures.h"
#include "composer/tumbo/held_keys.h"
#include "composer/tumbo/tumbo_menus.h"
#include "composer/tumbo/tumbo_settings.h"
#include "livetools/key_listener.h"
#include "menus/menu_actions.h"
#include "platform/control_array.h"
#include "platform/core/profile_file.h"
#include "platform/core/units.h"
#include "platform/dialogs.h"
#include "platform/field_text.h"
#include "platform/status_line.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "text/insert_blocks.h"
#include "text/macro_table.h"
#include "ui_rawform.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

namespace zeph {

namespace {

constexpr int helpTopic = 2045;
constexpr QSize usualSize(980, 680);
constexpr QColor toggledOn(0xFF, 0xC0, 0x80);

constexpr ControlMenuNames controlMenus{ u"mnuHatPos", u"MnuHatPosition", u"MnuHatCornerPostion",
                                         u"mnuTrig", u"mnuTriggerStage" };

/// What boxes and entries are called in a view.
struct ViewWords {
    QStringView make;
    QStringView release;
    QStringView brackets;
    QStringView pressAndRelease;
};
constexpr ViewWords kdKuWords{ u"Key Down", u"Key Up", u"Add &KD(), KU()",
                               u"&Create /P /R statement using KD, KU codes" };
constexpr ViewWords usbWords{ u"USB key Down", u"USB key Up", u"Add &USB ()",
                              u"&Create /P /R statement using USB codes" };

struct OptionEntry {
    QStringView entry;
    bool TumboSettings::*option;
};
constexpr std::array optionEntries = {
    OptionEntry{ u"mnuOption1_0", &TumboSettings::AddTumboCR },
    OptionEntry{ u"mnuOption1_1", &TumboSettings::AddRawBrackets },
    OptionEntry{ u"mnuOption1_2", &TumboSettings::UseShfKey },
    OptionEntry{ u"mnuViewCodes", &TumboSettings::ViewUSBcodes },
    OptionEntry{ u"mnuViewUSBcodes", &TumboSettings::TumboControlBox },
    OptionEntry{ u"mnuHideBasicHelp", &TumboSettings::HideBasicHelp },
};

constexpr QStringView listening =
    u"Listening: press a key on your keyboard. No key is a shortcut now. A click or Escape pressed "
    "twice ends it.";

} // namespace

RAWform::RAWform(const Context &context, Documents &documents, ComposerEditor &editor,
                 QWidget *parent)
    : QWidget(parent, Qt::Window), m_context(context), m_documents(documents), m_editor(editor),
      m_inserter(context, documents, editor), m_ui(std::make_unique<Ui::RAWform>()),
      m_menus(std::make_unique<MenuActions>(context.dialogs, QString(), tumboMenus(),
                                            tumboActions(), this))
{
    m_ui->setupUi(this);
    m_boxes = { m_ui->SyntaxText, m_ui->RMakeText, m_ui->RBreakText, m_ui->RCombinedText };
    m_ui->LabelSyntax->setText(u"Thrustmaster S&yntax"_s);
    m_ui->LabelCombined->setText(u"USB combined"_s);
    auto *bar = new QMenuBar(this);
    bar->setObjectName(u"TumboMenus"_s);
    m_menus->addTo(*bar);
    layout()->setMenuBar(bar);
    m_ui->LabelControl->setMinimumHeight(m_ui->LabelControl->fontMetrics().lineSpacing() * 2);
    // So that nothing moves when the line comes, and the window is never too low for the help.
    for (QLabel *each : { m_ui->LabelListen, m_ui->LabelBasicHelp }) {
        each->setMinimumHeight(each->fontMetrics().lineSpacing() * 2);
    }
    m_ui->ComboMacros->addItems(linesOfListFile(context.paths.inApp(u"DefaultMacros.txt")));
    // It would make another name of a short one that is typed.
    m_ui->ComboMacros->setCompleter(nullptr);
    m_ui->ComboMacros->lineEdit()->setObjectName(u"MacroName"_s);
    m_ui->ComboMacros->lineEdit()->setAccessibleName(m_ui->ComboMacros->accessibleName());
    m_ui->ComboMacros->clearEditText();
    GetTumboOptions();
    connectMenus();
    connectButtons();
    connectListener();
    makePictures();
    addEditorKeys(*this, context, editor);
    HideUSBstuff();
    showParts();
    PositionTumbo();
}

RAWform::~RAWform() = default;

TumboSettings &RAWform::options()
{
    return m_context.settings.of<TumboSettings>();
}

void RAWform::connectMenus()
{
    m_menus->connectArray(u"mnuViewKDKUUSB"_s, [this](int i) { mnuViewKDKUUSB_Click(i); });
    m_menus->connectTo(u"mnuCreatePRraw", [this] { mnuCreatePRraw_Click(); });
    m_menus->connectTo(u"mnuAddRemCombined", [this] { mnuAddRemCombined_Click(); });
    for (const OptionEntry &each : optionEntries) {
        m_menus->action(each.entry)->setChecked(options().*each.option);
        m_menus->connectTo(each.entry, [this, each] {
            options().*each.option = m_menus->action(each.entry)->isChecked();
            SaveTumboOptions();
            UpdateTextBoxes();
            showParts();
        });
    }
}

void RAWform::connectButtons()
{
    const auto onClick = [this](QAbstractButton *button, auto act) {
        connect(button, &QAbstractButton::clicked, this,
                guarded(m_context.dialogs, [act](bool) { act(); }));
    };
    connect(m_ui->Board, &KeyBoard::pressed, this,
            guarded(m_context.dialogs, [this](int index) { Command1_Click(index); }));
    for (QPushButton *toggle : { m_ui->ToggleButton1, m_ui->ToggleButton2, m_ui->ToggleButton3 }) {
        onClick(toggle, [this] { ToggleButton_Click(); });
    }
    const ControlArray<QPushButton> adds(this, u"Command10"_s);
    for (int i = 0; i < adds.count(); ++i) {
        onClick(adds[i], [this, i] { Command10_Click(i); });
    }
    const ControlArray<QPushButton> inserts(this, u"CommandPasteJ"_s);
    for (int i = 0; i < inserts.count(); ++i) {
        onClick(inserts[i], [this, i] { CommandPasteJ_Click(i); });
    }
    const auto addsWord = [this, onClick](QAbstractButton *button, const QString &word) {
        onClick(button, [this, word] {
            append(word);
            m_ui->TotalCombinedText->setFocus();
        });
    };
    addsWord(m_ui->Command6, u" DLY("_s);
    addsWord(m_ui->Command7, u" Rem "_s);
    addsWord(m_ui->Command8, u" RPT("_s);
    onClick(m_ui->cmdCreateMacro, [this] { CreateMacro(); });
    onClick(m_ui->CommandOK, [this] { hideTumbo(); });
    const auto help = [this] {
        Q_EMIT helpWanted(helpTopic);
    };
    onClick(m_ui->CommandHelp, help);
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, help);
    connect(m_ui->TotalCombinedText, &QLineEdit::textChanged, this,
            guarded(m_context.dialogs,
                    [this](const QString &text) { TotalCombinedText_Change(text); }));
    connect(m_ui->CheckAlwaysInsert, &QCheckBox::toggled, this,
            guarded(m_context.dialogs, [this](bool on) {
                options().AlwaysInsert = on;
                SaveTumboOptions();
            }));
}

void RAWform::connectListener()
{
    m_listener = new KeyListener(m_context.dialogs, *this, *m_ui->CommandListen);
    connect(m_listener, &KeyListener::toggled, this,
            [this](bool on) { m_ui->LabelListen->setText(on ? listening.toString() : QString()); });
    connect(m_listener, &KeyListener::keyPressed, m_ui->Board,
            [this](int index) { m_ui->Board->key(index)->click(); });
    connect(m_listener, &KeyListener::unknownKeyPressed, this,
            [this] { m_ui->LabelListen->setText(u"Listening: the board has no such key."_s); });
}

void RAWform::makePictures()
{
    m_pictures =
        new ControlPictures({ m_context, m_documents, m_inserter, m_editor },
                            { m_ui->Picture1_0, m_ui->Picture1_1, m_ui->ComboJoystickHandle },
                            options().AlwaysInsert, controlMenus, this);
    connect(m_pictures, &ControlPictures::told, m_ui->LabelControl, &QLabel::setText);
}

void RAWform::GetTumboOptions()
{
    tellProblems(
        m_context.dialogs,
        readGroup(m_context.settings.group<TumboSettings>(), settingsFilesOf(m_context.paths)));
    m_ui->CheckAlwaysInsert->setChecked(options().AlwaysInsert);
}

void RAWform::SaveTumboOptions()
{
    if (const auto kept = saveSettings(
            m_context.settings, settingsFilesOf(m_context.paths),
            { &TumboSettings::AddTumboCR, &TumboSettings::AddRawBrackets, &TumboSettings::UseShfKey,
              &TumboSettings::TumboControlBox, &TumboSettings::ViewUSBcodes,
              &TumboSettings::HideBasicHelp, &TumboSettings::AlwaysInsert });
        !kept) {
        tellNotKept(m_context.status, kept.error());
    }
}

void RAWform::PositionTumbo()
{
    resize(usualSize.expandedTo(minimumSizeHint()).boundedTo(screen()->availableSize()));
    const bool hadPlace =
        !ProfileFile(m_context.paths.iniPath).text(u"Tumbo", u"TumboLeft").isEmpty();
    if (!hadPlace && parentWidget()) {
        openBeside(*this, *parentWidget()->window());
        return;
    }
    restorePlace(
        *this,
        { cornerWithin(options().TumboLeft, options().TumboTop, screen()->size()), QSize() });
}

void RAWform::SavePosition()
{
    const QPoint corner = normalPlace(*this).topLeft();
    if (corner.x() < 0 || corner.y() < 0) {
        return;
    }
    options().TumboTop = twipsFromPixels(corner.y());
    options().TumboLeft = twipsFromPixels(corner.x());
    // A store that cannot be written is not told: the window then opens as it did before.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                       { &TumboSettings::TumboTop, &TumboSettings::TumboLeft });
}

void RAWform::ResizeTumbo()
{
    if (!isVisible() || isMaximized()) {
        return;
    }
    // What was hidden or shown a moment ago has not reached the layouts yet.
    for (QLayout *each : { m_ui->FrameKey->layout(), layout() }) {
        each->invalidate();
        each->activate();
    }
    // With the pictures it takes the room that they have usually; without them, what it needs.
    const int wanted =
        options().TumboControlBox ? usualSize.height() : layout()->totalHeightForWidth(width());
    resize(QSize(width(), std::min(wanted, screen()->availableSize().height()))
               .expandedTo(minimumSizeHint()));
}

void RAWform::showParts()
{
    const bool codes = options().ViewUSBcodes;
    for (QWidget *each : std::initializer_list<QWidget *>{
             m_ui->LabelMake, m_ui->LabelBreak, m_ui->LabelCombined, m_ui->RMakeText,
             m_ui->RBreakText, m_ui->RCombinedText, m_ui->Command10_1, m_ui->Command10_2,
             m_ui->Command10_3, m_ui->CommandPasteJ_1, m_ui->CommandPasteJ_2,
             m_ui->CommandPasteJ_3 }) {
        each->setVisible(codes);
    }
    m_ui->FrameControls->setVisible(options().TumboControlBox);
    m_ui->SSTab1TumboControlBox->setVisible(options().TumboControlBox);
    m_ui->LabelBasicHelp->setVisible(!options().HideBasicHelp);
    ResizeTumbo();
}

void RAWform::GetHandles()
{
    m_pictures->GetHandles();
}

void RAWform::HideUSBstuff()
{
    const ViewWords &words = m_view == CodeView::KdKu ? kdKuWords : usbWords;
    m_ui->LabelMake->setText(words.make.toString());
    m_ui->LabelBreak->setText(words.release.toString());
    m_ui->RMakeText->setAccessibleName(words.make.toString());
    m_ui->RBreakText->setAccessibleName(words.release.toString());
    m_menus->action(u"mnuOption1_1")->setText(words.brackets.toString());
    m_menus->action(u"mnuCreatePRraw")->setText(words.pressAndRelease.toString());
    m_menus->tickOnly(u"mnuViewKDKUUSB"_s, int(m_view));
}

void RAWform::mnuViewKDKUUSB_Click(int index)
{
    m_view = CodeView(index);
    HideUSBstuff();
    UpdateTextBoxes();
}

void RAWform::Command1_Click(int index)
{
    m_key = boardKey(index);
    UpdateTextBoxes();
    m_default = m_ui->CommandPasteJ_0;
    m_default->setDefault(true);
}

void RAWform::ToggleButton_Click()
{
    for (QPushButton *toggle : { m_ui->ToggleButton1, m_ui->ToggleButton2, m_ui->ToggleButton3 }) {
        QPalette look;
        if (toggle->isChecked()) {
            look.setColor(QPalette::Button, toggledOn);
            look.setColor(QPalette::ButtonText, Qt::black);
        }
        toggle->setPalette(look);
    }
    m_ui->Board->setShifted(m_ui->ToggleButton1->isChecked());
    UpdateTextBoxes();
}

void RAWform::UpdateTextBoxes()
{
    const KeyToggles toggles{ m_ui->ToggleButton1->isChecked(), m_ui->ToggleButton2->isChecked(),
                              m_ui->ToggleButton3->isChecked() };
    m_strings = m_key ? GetKeystrings(*m_key, toggles, m_view, options().UseShfKey) : KeyStrings();
    const std::array texts = { m_strings.KeySyntax, m_strings.MakeCodes, m_strings.BreakCodes,
                               m_strings.CombinedCodes };
    for (size_t i = 0; i < texts.size(); ++i) {
        showText(*m_boxes[i], texts[i]);
    }
    m_ui->Board->setShown(m_key ? m_key->index : -1);
}

void RAWform::append(const QString &text)
{
    m_ui->TotalCombinedText->setText(m_ui->TotalCombinedText->text() + text);
}

void RAWform::Command10_Click(int index)
{
    append(statementText(notations[size_t(index)], m_boxes[size_t(index)]->text(), m_view,
                         options().AddRawBrackets));
}

void RAWform::mnuCreatePRraw_Click()
{
    if (const QString made = pressAndReleaseStatement(m_strings, m_view); !made.isEmpty()) {
        m_ui->TotalCombinedText->setText(made);
    }
}

void RAWform::mnuAddRemCombined_Click()
{
    if (const QString made = combinedWithRem(m_strings); !made.isEmpty()) {
        m_ui->TotalCombinedText->setText(made);
    }
}

void RAWform::TotalCombinedText_Change(const QString &text)
{
    m_ui->Board->setHeld(keysHeldBy(text));
    Q_EMIT totalCombinedTextChanged(text);
}

Generated RAWform::statementOf(int index) const
{
    if (size_t(index) == notations.size()) {
        return statementToInsert(m_ui->TotalCombinedText->text());
    }
    return plainStatement(statementText(notations[size_t(index)], m_boxes[size_t(index)]->text(),
                                        m_view,
                                        m_context.settings.of<TumboSettings>().AddRawBrackets),
                          false);
}

void RAWform::CommandPasteJ_Click(int index)
{
    Generated statement = statementOf(index);
    if (statement && statement->text().isEmpty()) {
        return;
    }
    if (statement && options().AddTumboCR) {
        statement->pieces.append({ u"\n"_s });
    }
    if (m_inserter.insertIntoSelected(statement)) {
        clearBoxes();
    }
}

void RAWform::clearBoxes()
{
    m_key = nullptr;
    UpdateTextBoxes();
    m_ui->TotalCombinedText->clear();
}

void RAWform::CreateMacro()
{
    const QString name = m_ui->ComboMacros->currentText();
    const QString line = macroLine(name, m_ui->TotalCombinedText->text());
    if (!line.isEmpty() && m_inserter.insertMacroLine(line)) {
        m_context.status.setText(u" The macro file has %1 now"_s.arg(withoutRefused(name)));
    }
}

void RAWform::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        guarded(m_context.dialogs, [this] { m_pictures->followHandle(); })();
    }
}

QPushButton *RAWform::focusedButton() const
{
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    return button && !button->isCheckable() ? button : nullptr;
}

void RAWform::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        hideTumbo();
    } else if (isEnter && m_ui->ComboMacros->hasFocus()) {
        m_ui->cmdCreateMacro->click();
    } else if (isEnter && m_ui->TotalCombinedText->hasFocus()) {
        m_ui->CommandPasteJ_4->click();
    } else if (isEnter && focusedButton()) {
        focusedButton()->click();
    } else if (isEnter && m_default) {
        m_default->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void RAWform::closeEvent(QCloseEvent *event)
{
    SavePosition();
    SaveTumboOptions();
    QWidget::closeEvent(event);
}

void RAWform::hideTumbo()
{
    hide();
    returnToEditor(*this, m_editor);
}

} // namespace zeph
