// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/quickview.h"

#include "documents/documents.h"
#include "livetools/quickview/coverage_window.h"
#include "livetools/quickview/quick_view_actions.h"
#include "livetools/quickview/quick_view_picture.h"
#include "livetools/quickview/quick_view_settings.h"
#include "livetools/quickview/sender_search.h"
#include "livetools/quickview/shown_column.h"
#include "livetools/quickview/windows_mode_check.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "platform/tool_windows.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "toolchain/toolchain_settings.h"
#include "ui_quickview.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTextBlock>

#include <utility>

namespace zeph {

namespace {

constexpr QStringView ready = u" Quick View ready";

constexpr int joyTimerMs = 100;
/// After the last key, so that nobody waits for the picture while typing.
constexpr int typingMs = 500;
constexpr int helpTopic = 296;
constexpr int searchMargin = 8;

/// The boxes that a click selects when nothing else tells the position.
constexpr int upBox = 0;
constexpr int letOutBox = 4;

std::initializer_list<SettingRef> ownSettings()
{
    using S = QuickViewSettings;
    static const std::initializer_list<SettingRef> own = { &S::Underscores, &S::RotaryStrip,
                                                           &S::DisableJoystick, &S::ShowKeys,
                                                           &S::HideAllToolBars };
    return own;
}

/// An entry with a tick, and the setting that it shows.
struct TickedOption {
    QStringView entry;
    bool QuickViewSettings::*value;
};
constexpr std::array tickedOptions = {
    TickedOption{ u"mnuOptionsUnderscores", &QuickViewSettings::Underscores },
    TickedOption{ u"mnuOptionsRotaryStrip", &QuickViewSettings::RotaryStrip },
    TickedOption{ u"mnuOptionsShowKeys", &QuickViewSettings::ShowKeys },
};

void tellSlap(Dialogs &dialogs)
{
    dialogs.tell(
        u"Your Cougar needs a slap"_s,
        u"There was a problem trying to put the controllers into Windows mode. The controllers "
        "signalled back to Zeph that the request to change modes generated an error. You may want "
        "to close down the Quick View, and try to put the Cougar into Windows mode manually. You "
        "can do this either from the Status bar, or from the Editor's Cougar menu, or from the "
        "CCP.\nYou can still use Quick View though, it's just that you can't select the different "
        "/U, /M, /D, /I, /O modes by changing the position of the Dogfight switch on your throttle "
        "and button S3 on your joystick. So you'll need to manually select the different /U, /M, "
        "/D, /I, /O modes by just clicking on the relevant coloured U, M, D, I, O boxes. And don't "
        "even think about blaming me for this. I'm just the messenger!"_s,
        BoxIcon::Exclamation);
}

} // namespace

QuickView::QuickView(const Context &context, const QuickViewSources &sources, QWidget *parent)
    : QMainWindow(parent), m_context(context), m_sources(sources),
      m_ui(std::make_unique<Ui::QuickView>()),
      m_actions(std::make_unique<MenuActions>(context.dialogs, context.paths.inApp(u"icons/"),
                                              quickViewMenuBar(), quickViewActions(), this)),
      m_modeCheck(new WindowsModeCheck(context, this)), m_joyTimer(new QTimer(this)),
      m_typingTimer(new QTimer(this)), m_search(new SenderSearch(context.dialogs, this))
{
    m_ui->setupUi(this);
    m_shown = std::make_unique<ShownColumn>(picture());
    setWindowFlag(Qt::Window);
    m_actions->addTo(*m_ui->MenuBar1);
    m_search->setContentsMargins(searchMargin, 0, searchMargin, 0);
    m_ui->layoutCentre->addWidget(m_search);
    m_search->hide();
    m_joyTimer->setObjectName(u"JoyTimer"_s);
    m_joyTimer->setInterval(joyTimerMs);
    m_typingTimer->setSingleShot(true);
    m_typingTimer->setInterval(typingMs);
    makeBars();
    connectEntries();
    connectPicture();
    connectDocument();
    connectSearch();
    picture().showControls(drawnControls(context.paths.appFolder, context.paths.iniPath));
    GetQuickViewOptions();
    macrosChanged();
    if (parent) {
        openBeside(*this, *parent->window());
    }
}

QuickView::~QuickView() = default;

bool QuickView::Form_Load()
{
    const QPointer<QuickView> alive(this);
    showPosition();
    AnalyseAndFill();
    JustCheckThatMode();
    return !alive.isNull();
}

QuickViewPicture &QuickView::picture() const
{
    return *m_ui->Picture1;
}

void QuickView::makeBars()
{
    for (const QStringView name :
         { u"mnuGoToStatement", u"mnuFindSender", u"mnuCoverage", u"", u"mnuOptionsShowKeys",
           u"mnuOptionsDisableJoystick", u"", u"mnuHelpContents" }) {
        if (name.isEmpty()) {
            m_ui->Toolbar1->addSeparator();
        } else {
            QAction *entry = m_actions->action(name);
            m_ui->Toolbar1->addAction(entry);
            m_ui->Toolbar1->widgetForAction(entry)->setObjectName(u"Toolbar1_"_s
                                                                  + name.sliced(3).toString());
        }
    }
}

void QuickView::connectEntries()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuGoToStatement", [this] { goToFocused(); });
    on.connectTo(u"mnuFindSender",
                 [this] { showSearch(m_actions->action(u"mnuFindSender")->isChecked()); });
    on.connectTo(u"mnuCoverage", [this] { showCoverage(); });
    on.connectTo(u"mnuQuickViewClose", [this] { close(); });
    on.connectArray(u"mnuPosition"_s, [this](int index) { Label3_Click(index); });
    for (const TickedOption &option : tickedOptions) {
        on.connectTo(option.entry, [this, option] {
            m_context.settings.of<QuickViewSettings>().*option.value =
                m_actions->action(option.entry)->isChecked();
            SaveQuickViewOptions();
            showOptions();
        });
    }
    on.connectTo(u"mnuOptionsDisableJoystick", [this] { mnuOptionsDisableJoystick_Click(); });
    on.connectTo(u"mnuHideAllToolBars", [this] {
        const bool hides = m_actions->action(u"mnuHideAllToolBars")->isChecked();
        m_context.settings.of<QuickViewSettings>().HideAllToolBars = hides;
        m_ui->Toolbar1->setHidden(hides);
        SaveQuickViewOptions();
    });
    on.connectTo(u"mnuHelpContents", [this] { Q_EMIT helpWanted(helpTopic); });
}

void QuickView::connectPicture()
{
    connect(&picture(), &QuickViewPicture::positionClicked, this, &QuickView::Label3_Click);
    connect(&picture(), &QuickViewPicture::activated, this,
            guarded(m_context.dialogs, [this](int row) {
                jumpTo({ row, m_shown->column() });
            }));
    connect(&picture(), &QuickViewPicture::focused, this, [this](int row) {
        m_focusedRow = row;
        m_actions->setCondition(QuickViewWhen::Statement, row > 0);
    });
    connect(m_joyTimer, &QTimer::timeout, this,
            guarded(m_context.dialogs, [this](auto &&...) { JoyTimer_Timer(); }));
    connect(m_modeCheck, &WindowsModeCheck::requestWanted, this, &QuickView::windowsModeWanted);
    connect(m_modeCheck, &WindowsModeCheck::finished, this,
            guarded(m_context.dialogs, [this](bool isWindowsMode) { modeChecked(isWindowsMode); }));
}

void QuickView::connectDocument()
{
    const Document &joystick = m_sources.documents.joystick();
    const auto analyse = guarded(m_context.dialogs, [this](auto &&...) { AnalyseAndFill(); });
    const auto read = guarded(m_context.dialogs, [this](auto &&...) { readFile(); });
    connect(&joystick, &Document::replaced, this,
            guarded(m_context.dialogs, [this](Document::How how) {
                how == Document::How::Undone ? readFile() : AnalyseAndFill();
            }));
    connect(&joystick, &Document::renamed, this, analyse);
    connect(&joystick, &Document::written, this, read);
    connect(&joystick, &Document::edited, m_typingTimer, qOverload<>(&QTimer::start));
    connect(m_typingTimer, &QTimer::timeout, this, read);
    connect(&joystick, &Document::caretMoved, this, [this] { markCaret(); });
}

void QuickView::connectSearch()
{
    connect(m_search, &SenderSearch::soughtChanged, this,
            guarded(m_context.dialogs, [this](const QString &) { markSenders(); }));
}

void QuickView::GetQuickViewOptions()
{
    // The problems are not told: an option that cannot be read has its default.
    (void)readSettings(m_context.settings, settingsFilesOf(m_context.paths), ownSettings());
    const auto &settings = m_context.settings.of<QuickViewSettings>();
    for (const TickedOption &option : tickedOptions) {
        m_actions->action(option.entry)->setChecked(settings.*option.value);
    }
    m_joystickDisabled = settings.DisableJoystick != 0;
    m_actions->action(u"mnuOptionsDisableJoystick")->setChecked(m_joystickDisabled);
    m_actions->action(u"mnuHideAllToolBars")->setChecked(settings.HideAllToolBars);
    m_ui->Toolbar1->setHidden(settings.HideAllToolBars);
    showOptions();
}

void QuickView::SaveQuickViewOptions()
{
    // A store that cannot be written is not told: the window then opens as it did before.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths), ownSettings());
}

void QuickView::AnalyseAndFill()
{
    readFile();
    picture().setTitle(m_sources.documents.joystick().caption());
    if (!m_joystickDisabled && !m_modeCheck->isRunning()) {
        m_joyTimer->start();
    }
    say(ready.toString());
}

void QuickView::readFile()
{
    m_typingTimer->stop();
    const Document &joystick = m_sources.documents.joystick();
    m_shown->setContents(fileContents(joystick.text()));
    m_shown->setCaretLine(joystick.caretLine());
    tellContents();
}

void QuickView::macrosChanged()
{
    m_shown->setKeys(MacroKeys(m_sources.macros));
    m_search->setMacroNames(m_sources.macros.names.value(0));
    tellContents();
}

void QuickView::tellContents()
{
    m_search->showResult(m_shown->sending());
    if (m_coverage) {
        m_coverage->show(m_shown->contents().table, m_shown->keys());
    }
}

void QuickView::FillTextBoxes(int base, int IO)
{
    m_shown->show(base + IO);
}

void QuickView::showOptions()
{
    const auto &settings = m_context.settings.of<QuickViewSettings>();
    m_shown->setOptions({ settings.Underscores, settings.RotaryStrip }, settings.ShowKeys);
}

void QuickView::JoyTimer_Timer()
{
    if (m_joystickDisabled || m_modeCheck->isRunning()) {
        return;
    }
    const int id = m_context.settings.of<ToolchainSettings>().JoyIDnumber;
    const JoystickReading reading = m_sources.joystick.read(id);
    if (reading.result != Joystick::answered) {
        say(lostJoystickText(reading.result, id));
        disableJoystick();
        JustCheckThatMode();
        return;
    }
    applyState(liveState(reading));
}

void QuickView::applyState(const LiveState &state)
{
    const StateChange change = changeOf(m_state, state);
    if (change.isNothing()) {
        return;
    }
    m_state = state;
    for (size_t flag = 0; flag < flagCount; ++flag) {
        if (change.turnsBold[flag] || change.turnsPlain[flag]) {
            picture().setPressed(int(flag) + 1, state.pressed[flag]);
        }
    }
    if (change.column) {
        showPosition();
        FillTextBoxes(state.base, state.io);
    }
}

void QuickView::showPosition()
{
    const std::bitset<positionCount> lit = litLabels(m_state);
    picture().light(lit);
    for (int at = 0; at < positionCount; ++at) {
        m_actions->action(u"mnuPosition_"_s + QString::number(at))->setChecked(lit[size_t(at)]);
    }
}

void QuickView::Label3_Click(int index)
{
    m_state = withClicked(m_state, index);
    showPosition();
    FillTextBoxes(m_state.base, m_state.io);
}

void QuickView::RemoveBoldLabels()
{
    LiveState released = m_state;
    released.pressed.reset();
    applyState(released);
}

void QuickView::JustCheckThatMode()
{
    if (m_joystickDisabled) {
        RemoveBoldLabels();
        Label3_Click(upBox);
        Label3_Click(letOutBox);
        return;
    }
    m_joyTimer->stop();
    m_modeCheck->start();
}

void QuickView::modeChecked(bool isWindowsMode)
{
    if (isWindowsMode) {
        // The request for the mode has said that one has to wait.
        say(ready.toString());
        m_joyTimer->start();
        JoyTimer_Timer();
        return;
    }
    disableJoystick();
    JustCheckThatMode();
    tellSlap(m_context.dialogs);
}

void QuickView::disableJoystick()
{
    m_joyTimer->stop();
    m_joystickDisabled = true;
    m_actions->action(u"mnuOptionsDisableJoystick")->setChecked(true);
}

void QuickView::mnuOptionsDisableJoystick_Click()
{
    const bool disables = m_actions->action(u"mnuOptionsDisableJoystick")->isChecked();
    m_context.settings.of<QuickViewSettings>().DisableJoystick = disables ? 1 : 0;
    SaveQuickViewOptions();
    m_joystickDisabled = disables;
    if (disables) {
        m_joyTimer->stop();
        m_modeCheck->cancel();
        RemoveBoldLabels();
    } else {
        JustCheckThatMode();
    }
}

void QuickView::markCaret()
{
    // While the text is ahead of the picture, its lines are too.
    if (!m_typingTimer->isActive()) {
        m_shown->setCaretLine(m_sources.documents.joystick().caretLine());
    }
}

void QuickView::markSenders()
{
    // What was sought stays in the hidden field, for the next time.
    m_shown->look(m_search->isHidden() ? QString() : m_search->sought());
    m_search->showResult(m_shown->sending());
}

void QuickView::jumpTo(CellPlace cell)
{
    readFile();
    const FileContents &contents = m_shown->contents();
    const int line = lineToJumpTo(contents.table, contents.places, cell);
    if (line == 0) {
        return;
    }
    Document &joystick = m_sources.documents.joystick();
    m_sources.documents.select(DocumentKind::Joystick);
    const QTextBlock block = joystick.content().findBlockByNumber(line - 1);
    joystick.select(block.position(), block.length() - 1);
    Q_EMIT editorWanted();
}

void QuickView::goToFocused()
{
    if (m_focusedRow > 0) {
        jumpTo({ m_focusedRow, m_shown->column() });
    }
}

void QuickView::showCoverage()
{
    if (!m_coverage) {
        m_coverage = new CoverageWindow(m_context, this);
        connect(m_coverage, &CoverageWindow::jumpTo, this,
                guarded(m_context.dialogs, [this](const CellPlace &cell) { jumpTo(cell); }));
        m_coverage->show(m_shown->contents().table, m_shown->keys());
    }
    ToolWindows::raise(*m_coverage);
}

void QuickView::showSearch(bool shown)
{
    m_search->setVisible(shown);
    if (shown) {
        m_search->focusField();
    }
    markSenders();
}

void QuickView::say(const QString &text)
{
    m_context.status.setText(text);
    m_ui->StatusBar1->showMessage(text.trimmed());
}

void QuickView::keyPressEvent(QKeyEvent *event)
{
    QAction *search = m_actions->action(u"mnuFindSender");
    if (event->key() == Qt::Key_Escape && search->isChecked()) {
        search->trigger();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void QuickView::closeEvent(QCloseEvent *event)
{
    SaveQuickViewOptions();
    QMainWindow::closeEvent(event);
}

} // namespace zeph
