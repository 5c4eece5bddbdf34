// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/keytestform.h"

#include "livetools/key_names.h"
#include "livetools/key_test_rules.h"
#include "livetools/key_tester_settings.h"
#include "menus/menu_actions.h"
#include "platform/core/units.h"
#include "platform/dialogs.h"
#include "platform/input/keyboard.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "toolchain/handshake.h"
#include "toolchain/toolchain_settings.h"
#include "ui_keytestform.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPointer>

#include <array>

namespace zeph {

namespace {

constexpr int defaultDelayMs = 500;
constexpr int layoutNameLength = 10;
/// In lines. A Cougar that sends without end must not fill the memory.
constexpr int longestList = 10000;

constexpr std::array fontPoints = { 8, 10, 14 };
constexpr int mediumText = 1;

constexpr QColor lit(0xFF, 0xC0, 0x80);
constexpr QColor menusShown(0x00, 0xFF, 0x00);
constexpr QColor menusHidden(0xFF, 0x00, 0x00);

constexpr QColor warning(0xFF, 0x80, 0x80);

constexpr int programmedMode = 1;

void paint(QWidget *widget, QPalette::ColorRole back, QPalette::ColorRole text, QColor colour)
{
    QPalette look;
    look.setColor(back, colour);
    look.setColor(text, Qt::black);
    widget->setPalette(look);
}

} // namespace

KeyTestForm::KeyTestForm(const Context &context, const KeyTestEntries &entries, QWidget *parent)
    : QWidget(parent, Qt::Window), m_context(context), m_entries(entries),
      m_ui(std::make_unique<Ui::KeyTestForm>()),
      m_menus(std::make_unique<MenuActions>(context.dialogs, QString(), keyTestMenus(),
                                            keyTestActions(), this)),
      m_timer1(new QTimer(this))
{
    m_ui->setupUi(this);
    m_bar = new QMenuBar(this);
    m_bar->setObjectName(u"KeyTestMenus"_s);
    m_menus->addTo(*m_bar);
    layout()->setMenuBar(m_bar);
    connectEntries();
    for (RichTextBox *list : { m_ui->RTFKeysText, m_ui->RTFKeysDownText }) {
        list->setUndoRedoEnabled(false);
        list->document()->setMaximumBlockCount(longestList);
    }
    setFontSize(mediumText);
    m_timer1->setObjectName(u"Timer1"_s);
    m_timer1->setInterval(defaultDelayMs);
    m_timer1->setSingleShot(true);
    connect(m_timer1, &QTimer::timeout, this, [this] { m_rules.delayOver(); });
    m_modeTimer.setInterval(checkForCompletionTimeMs(context.settings.of<ToolchainSettings>()));
    connect(&m_modeTimer, &QTimer::timeout, this, [this] { readMode(); });
    connect(m_ui->Label1, &QPushButton::clicked, this, [this] { ToggleMenus(); });
    connect(m_ui->LBL_ModeWarning, &QPushButton::clicked, this,
            guarded(context.dialogs, [this](bool) { LBL_ModeWarning_Click(); }));
    paint(m_ui->LBL_ModeWarning, QPalette::Button, QPalette::ButtonText, warning);
    m_ui->LBL_ModeWarning->hide();
    // Menu bars and shortcuts see a key before the window that has the focus; a filter of the
    // application sees it first of all.
    QCoreApplication::instance()->installEventFilter(this);
}

KeyTestForm::~KeyTestForm() = default;

bool KeyTestForm::Form_Load()
{
    m_layoutName = m_context.keyboard.layoutName().left(layoutNameLength);
    if (!m_layoutName.isEmpty()) {
        m_ui->LabelKeys->setToolTip(u"Keyboard layout: "_s + m_layoutName);
    }
    ClearTextBoxes();
    showNumLock();
    if (m_context.keyboard.capsLockOn()) {
        TurnOffCapsLOCK();
    }
    GetKeyPosition();
    m_menus->action(u"mnuDX8KeyTester")->setVisible(m_entries.directXTester->isVisible());
    ResizeStuff();
    if (!GetMappedCharacters()) {
        return false;
    }
    const QPointer<KeyTestForm> alive(this);
    Q_EMIT buttonsModeWanted(true);
    QCoreApplication::processEvents();
    if (!alive) {
        return false;
    }
    m_modeTimer.start();
    readMode();
    return true;
}

void KeyTestForm::GetKeyPosition()
{
    auto &settings = m_context.settings.of<KeyTesterSettings>();
    tellProblems(
        m_context.dialogs,
        readSettings(m_context.settings, settingsFilesOf(m_context.paths),
                     { &KeyTesterSettings::KeyTopAtStartup, &KeyTesterSettings::KeyLeftAtStartup,
                       &KeyTesterSettings::KeyWidthAtStartup,
                       &KeyTesterSettings::KeyHeightAtStartup, &KeyTesterSettings::ClearDelay,
                       &KeyTesterSettings::KeyViewAll, &KeyTesterSettings::MenuDisplay }));
    const QSize size(pixelsFromTwips(settings.KeyWidthAtStartup),
                     pixelsFromTwips(settings.KeyHeightAtStartup));
    const bool hadPlace =
        !ProfileFile(m_context.paths.iniPath).text(u"Key Tester", u"KeyLeftAtStartup").isEmpty();
    if (hadPlace || !parentWidget()) {
        restorePlace(*this,
                     { QPoint(pixelsFromTwips(settings.KeyLeftAtStartup),
                              pixelsFromTwips(settings.KeyTopAtStartup)),
                       size });
    } else {
        resize(size);
        openBeside(*this, *parentWidget()->window());
    }
    setClearDelay(settings.ClearDelay);
    showKeyEvents(settings.KeyViewAll);
    showMenus(settings.MenuDisplay);
}

void KeyTestForm::SaveKeyFormPosition()
{
    auto &settings = m_context.settings.of<KeyTesterSettings>();
    const QRect place = normalPlace(*this);
    settings.KeyTopAtStartup = twipsFromPixels(place.y());
    settings.KeyLeftAtStartup = twipsFromPixels(place.x());
    settings.KeyWidthAtStartup = twipsFromPixels(place.width());
    settings.KeyHeightAtStartup = twipsFromPixels(place.height());
    // A store that cannot be written is not told: the window then opens as it did before.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                       { &KeyTesterSettings::KeyTopAtStartup, &KeyTesterSettings::KeyLeftAtStartup,
                         &KeyTesterSettings::KeyWidthAtStartup,
                         &KeyTesterSettings::KeyHeightAtStartup, &KeyTesterSettings::ClearDelay,
                         &KeyTesterSettings::KeyViewAll, &KeyTesterSettings::MenuDisplay });
}

void KeyTestForm::ClearTextBoxes()
{
    m_ui->RTFKeysText->clear();
    m_ui->RTFKeysDownText->clear();
}

bool KeyTestForm::GetMappedCharacters()
{
    const auto table = readKeyCodes(m_context);
    if (table) {
        m_rules.setTable(*table);
    }
    return table.has_value();
}

void KeyTestForm::TurnOffCapsLOCK()
{
    m_context.keyboard.turnOffCapsLock();
}

void KeyTestForm::ToggleMenus()
{
    showMenus(!m_context.settings.of<KeyTesterSettings>().MenuDisplay);
}

void KeyTestForm::showMenus(bool shown)
{
    m_context.settings.of<KeyTesterSettings>().MenuDisplay = shown;
    // The entries too, since assistive programs look at them and not at the bar.
    for (const QStringView name : { u"mnuEmergency", u"mnuClear", u"mnuView", u"mnuCopy" }) {
        m_menus->action(name)->setVisible(shown);
    }
    m_bar->setVisible(shown);
    paint(m_ui->Label1, QPalette::Button, QPalette::ButtonText, shown ? menusShown : menusHidden);
}

void KeyTestForm::ResizeStuff()
{
    const QString whole = u"Up/Down/Keycode events"_s;
    QLabel *heading = m_ui->LabelEvents;
    const int room = heading->width() - 2 * heading->indent();
    const bool fits = heading->fontMetrics().horizontalAdvance(whole) <= room;
    heading->setText(fits ? whole : u"Events"_s);
}

void KeyTestForm::connectEntries()
{
    MenuActions &on = *m_menus;
    on.connectTo(u"mnuEmergencyOff", [this] { Q_EMIT buttonsModeWanted(false); });
    on.connectArray(u"mnuMemoryClear"_s,
                    [this](int index) { m_entries.memoryClear[size_t(index)]->trigger(); });
    on.connectTo(u"mnuYankCord", [this] { mnuYankCord_Click(); });
    on.connectArray(u"mnuClearDelay"_s, [this](int index) { chooseClearDelay(index); });
    on.connectTo(u"mnuClearAll", [this] { ClearTextBoxes(); });
    on.connectTo(u"mnuViewKeyEvents",
                 [this] { showKeyEvents(!m_context.settings.of<KeyTesterSettings>().KeyViewAll); });
    on.connectArray(u"mnuFontSize"_s, [this](int index) { setFontSize(index); });
    on.connectArray(u"mnuCopyList"_s, [this](int index) { copyList(index); });
    on.connectTo(u"mnuDX8KeyTester", [this] { m_entries.directXTester->trigger(); });
}

void KeyTestForm::mnuYankCord_Click()
{
    m_context.dialogs.tell(
        u"I suppose you want me to make you a cup of tea as well"_s,
        u"You don't think I can do this for you, do you? I'm just a computer, and I've got enough "
        "of my own problems thank you very much without having to be burdened with yours."_s);
}

void KeyTestForm::chooseClearDelay(int index)
{
    setClearDelay(index == m_context.settings.of<KeyTesterSettings>().ClearDelay ? noClearDelay
                                                                                 : index);
}

void KeyTestForm::setClearDelay(int index)
{
    const auto interval = clearDelayMs(index);
    m_context.settings.of<KeyTesterSettings>().ClearDelay = interval ? index : noClearDelay;
    m_timer1->setInterval(interval.value_or(defaultDelayMs));
    m_menus->tickOnly(u"mnuClearDelay"_s, m_context.settings.of<KeyTesterSettings>().ClearDelay);
    if (!interval) {
        m_timer1->stop();
    }
}

void KeyTestForm::setFontSize(int index)
{
    QFont font;
    font.setPointSize(fontPoints[size_t(index)]);
    for (RichTextBox *list : { m_ui->RTFKeysText, m_ui->RTFKeysDownText }) {
        list->setFont(font);
    }
    m_menus->tickOnly(u"mnuFontSize"_s, index);
}

void KeyTestForm::showKeyEvents(bool shown)
{
    m_context.settings.of<KeyTesterSettings>().KeyViewAll = shown;
    m_ui->PaneEvents->setVisible(shown);
    m_menus->action(u"mnuViewKeyEvents")->setChecked(shown);
}

void KeyTestForm::copyList(int index) const
{
    const RichTextBox *list = index == 0 ? m_ui->RTFKeysText : m_ui->RTFKeysDownText;
    QGuiApplication::clipboard()->setText(list->toPlainText());
}

void KeyTestForm::light(QLabel *label, bool on) const
{
    if (on) {
        paint(label, QPalette::Window, QPalette::WindowText, lit);
    } else {
        label->setPalette(QPalette());
    }
}

void KeyTestForm::readMode()
{
    m_mode = HotasIni(m_context.paths.hotasIni()).readMode();
    const bool good = m_mode.Status != u"ERROR" && m_mode.Buttons == programmedMode;
    m_ui->LBL_ModeWarning->setVisible(!good);
    if (good) {
        // Form_Load() does not wait for the tools' answer, so it is polled until it is good. What
        // changes the mode afterwards is the pilot's own doing.
        m_modeTimer.stop();
    }
}

void KeyTestForm::LBL_ModeWarning_Click()
{
    const QString outcome = m_mode.Status == u"ERROR"
        ? u"signalled back to Zeph that the request to change modes generated an error. "_s
        : u"signalled back to Zeph that they didn't generate an error when trying to change to "
          "Programmed mode, but there again, they didn't report that they'd actually been "
          "successful in changing the controller mode."_s;
    m_context.dialogs.tell(
        u"Your Cougar needs a slap"_s,
        u"When you run the Key Tester, what Zeph attempts to do is to put the Cougar into "
        "programmed mode. After all, it doesn't make sense to run the Key tester if all of your "
        "controller buttons are in Windows (DirectX) mode.\n"
        "However, for some reason there was a problem trying to put the controllers into "
        "Programmed mode. The controllers "_s
            + outcome
            + u"\nI suggest that you close down the Key Tester, and try to put the Cougar into "
              "programmed mode manually. You can do this either from the Status bar, or from the "
              "Editor's Cougar menu, or from the CCP. And don't even think about blaming me for "
              "this. I'm just the messenger!"_s,
        BoxIcon::Exclamation);
}

void KeyTestForm::closeEvent(QCloseEvent *event)
{
    SaveKeyFormPosition();
    QWidget::closeEvent(event);
}

} // namespace zeph
