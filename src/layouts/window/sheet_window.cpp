// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_window.h"

#include "layouts/analysis/box_texts.h"
#include "layouts/arrange/arrange.h"
#include "layouts/files/layoutsize.h"
#include "layouts/window/sheet_actions.h"
#include "layouts/window/sheet_boxes.h"
#include "layouts/window/sheet_formatting.h"
#include "layouts/window/sheet_transfer.h"
#include "layouts/window/sheet_view.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/dialogs.h"
#include "platform/printers.h"
#include "platform/richtext/rich_text_box.h"
#include "platform/window_places.h"
#include "settings/settings_files.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include <array>

namespace zeph {

namespace {

/// The help topic on these windows.
constexpr int helpTopic = 297;
/// Of the step by step pages.
constexpr int tutorialTopic = 298;

/// In the order of SheetKind.
constexpr std::array<QStringView, 3> captions = { u"Joystick Layout Editor",
                                                  u"Throttle Layout Editor",
                                                  u"Custom layout editor" };

/// An empty name is a separator. Entries that a window has not are left out.
constexpr std::array<QStringView, 21> toolBar = {
    u"mnuOpenTextWithPositions",
    u"mnuSaveTextWithPositions",
    u"mnuPrint",
    u"mnuCaptureAsBitmap",
    u"",
    u"mnuEditCut",
    u"mnuEditCopy",
    u"mnuEditPaste",
    u"",
    u"mnuEditUndo",
    u"mnuEditRedo",
    u"",
    u"mnuFormatBold",
    u"mnuFormatItalic",
    u"mnuFormatUnderline",
    u"",
    u"mnuAnalyseArray_0",
    u"mnuApplyColours",
    u"mnuTransferArray_0",
    u"",
    u"mnuHelpContents",
};

/// What a window takes beside its sheet.
constexpr QSize windowFrame(70, 170);

} // namespace

SheetWindow::SheetWindow(const Context &context, SheetKind kind, const SheetSources &sources,
                         QWidget *parent)
    : QMainWindow(parent), m_context(context), m_kind(kind), m_sources(sources),
      m_actions(std::make_unique<MenuActions>(context.dialogs, context.paths.inApp(u"icons/"),
                                              sheetMenuBar(kind), sheetActions(kind), this)),
      m_model(emptySheet(kind)), m_view(new SheetView(m_model, this))
{
    setObjectName(sheetKind(kind).window.toString());
    setWindowFlag(Qt::Window);
    const SettingsFiles files = settingsFilesOf(context.paths);
    tellProblems(context.dialogs,
                 readLayoutsSettings(context.settings, files, paperPixels(sources.ways.printers)));
    makeBars();
    makeStaleBar();
    const SheetDesk desk{ context, kind, m_model, *m_view, *m_actions, *this };
    m_texts = new SheetTexts(desk, sources.documents, sources.macros);
    m_boxes = new SheetBoxes(desk);
    m_formatting = new SheetFormatting(desk);
    m_output = new SheetOutput(desk, sources.ways);
    m_transfer = new SheetTransfer(desk, sources.macros);
    m_files = new LayoutFiles(context, kind, this);
    makePopUp();
    connectFile();
    connectSheet();
    connectParts();
    GetLayoutOptions();
    openSheet();
    resize((QSize(m_model.sheet().width, m_model.sheet().height) + windowFrame)
               .boundedTo(screen()->availableSize()));
    if (parent) {
        openBeside(*this, *parent->window());
    }
}

SheetWindow::~SheetWindow() = default;

void SheetWindow::makeBars()
{
    for (QMenu *menu : m_actions->menuBar()) {
        if (menu->objectName() != boxMenu) {
            menuBar()->addMenu(menu);
        }
    }
    m_toolBar = addToolBar(u"Toolbar"_s);
    m_toolBar->setObjectName(u"Toolbar1"_s);
    m_toolBar->setMovable(false);
    constexpr QSize iconSize(20, 20);
    m_toolBar->setIconSize(iconSize);
    m_toolBar->toggleViewAction()->setVisible(false);
    for (const QStringView name : toolBar) {
        if (name.isEmpty()) {
            m_toolBar->addSeparator();
        } else if (m_actions->has(name)) {
            QAction *entry = m_actions->action(name);
            m_toolBar->addAction(entry);
            QWidget *button = m_toolBar->widgetForAction(entry);
            button->setObjectName(u"button"_s + name.toString());
            button->setAccessibleName(entry->text().remove(u'&'));
        }
    }
    const auto addPanel = [this](const QString &name, const QString &words) {
        auto *panel = new QLabel(this);
        panel->setObjectName(name);
        panel->setAccessibleName(words);
        panel->setToolTip(words);
        statusBar()->addPermanentWidget(panel);
        return panel;
    };
    statusBar()->setObjectName(u"StatusBar1"_s);
    m_overflow = addPanel(u"LBL_Overflow"_s, u"Textboxes that do not hold all of their text"_s);
    m_size = addPanel(u"LBL_Size"_s, u"Size of the sheet in pixels"_s);
}

void SheetWindow::makeStaleBar()
{
    auto *centre = new QWidget(this);
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_staleBar = new QWidget(centre);
    m_staleBar->setObjectName(u"StaleBar"_s);
    auto *row = new QHBoxLayout(m_staleBar);
    auto *words = new QLabel(
        u"Your joystick file has changed since this sheet was filled from it."_s, m_staleBar);
    words->setObjectName(u"LBL_Stale"_s);
    words->setWordWrap(true);
    auto *again = new QPushButton(u"A&nalyse again"_s, m_staleBar);
    again->setObjectName(u"cmdAnalyseAgain"_s);
    again->setToolTip(u"Fills the textboxes anew; your own textboxes stay"_s);
    row->addWidget(words, 1);
    row->addWidget(again);
    m_staleBar->hide();
    layout->addWidget(m_staleBar);
    layout->addWidget(m_view, 1);
    setCentralWidget(centre);
    connect(again, &QPushButton::clicked, this, guarded(m_context.dialogs, [this](bool) {
                m_texts->AnalyseJoystickFile(SheetTexts::Boxes::WithoutOwn);
            }));
}

void SheetWindow::makePopUp()
{
    QMenu *menu = m_actions->menu(boxMenu);
    QAction *first = menu->actions().front();
    for (const QStringView name : { u"mnuEditUndo", u"mnuEditRedo", u"", u"mnuEditCut",
                                    u"mnuEditCopy", u"mnuEditPaste", u"", u"mnuStyles", u"" }) {
        if (name.isEmpty()) {
            menu->insertSeparator(first);
        } else {
            menu->insertAction(first, m_actions->action(name));
        }
    }
    connect(&m_view->canvas(), &SheetCanvas::menuWanted, menu,
            [menu](const QPoint &at) { menu->popup(at); });
}

void SheetWindow::connectFile()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuOpenPositions",
                 [this] { showOpened(m_files->OpenTextBoxPositions(m_model.sheet())); });
    on.connectTo(u"mnuOpenTextWithPositions",
                 [this] { showOpened(m_files->OpenTextWithPositions(m_model.sheet())); });
    on.connectTo(u"mnuSavePositions", [this] {
        m_files->SavePositions(m_model.sheet());
        updateConditions();
    });
    on.connectTo(u"mnuSaveTextWithPositions", [this] {
        m_files->SaveTextWithPositions(m_model.sheet());
        updateConditions();
    });
    on.connectTo(u"mnuClearLayouts", [this] { m_files->mnuClearLayouts_Click(); });
    on.connectTo(u"mnuAutoLayout", [this] { setAutomatic(); });
    on.connectTo(u"mnuClose", [this] { close(); });
    m_recent =
        new MenuArray(m_context.dialogs, *on.menu(u"mnuPrevLO"), on.action(u"mnuPrevLODivider"),
                      u"mnuPrevLOArray"_s, [this](int place) {
                          showOpened(m_files->openRecent(place, m_model.sheet()));
                      });
    connect(m_files, &LayoutFiles::recentChanged, this, &SheetWindow::showRecent);
    connect(m_files, &LayoutFiles::told, this,
            [this](const QString &status) { statusBar()->showMessage(status); });
    showRecent();
}

void SheetWindow::connectSheet()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuEditUndo", [this] { m_model.undo(); });
    on.connectTo(u"mnuEditRedo", [this] { m_model.redo(); });
    on.connectTo(u"mnuLayoutSize", [this] { ChangeLayoutProps(); });
    on.connectTo(u"mnuViewToolBar", [this] {
        m_toolBar->setVisible(m_actions->action(u"mnuViewToolBar")->isChecked());
        SaveLayoutOptions();
    });
    on.connectArray(u"mnuShowKeysArray"_s, [this](int i) {
        auto &settings = m_context.settings.of<LayoutsSettings>();
        settings.ShowKeys = i;
        (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                           { &LayoutsSettings::ShowKeys });
        refresh();
    });
    on.connectTo(u"mnuHelpContents", [this] { Q_EMIT helpWanted(helpTopic); });
    on.connectTo(u"mnuHelpTutorials", [this] { Q_EMIT helpWanted(tutorialTopic); });
    if (m_kind == SheetKind::Custom) {
        on.connectTo(u"mnuOwnPicture", [this] { chooseOwnPicture(); });
        return;
    }
    on.connectTo(u"mnuArrange", [this] { arrange(); });
    on.connectTo(u"mnuLeaderLines", [this] {
        auto &settings = m_context.settings.of<LayoutsSettings>();
        settings.LeaderLines = m_actions->action(u"mnuLeaderLines")->isChecked();
        (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                           { &LayoutsSettings::LeaderLines });
        loadPictures();
    });
}

void SheetWindow::connectParts()
{
    MenuActions &on = *m_actions;
    if (m_kind != SheetKind::Custom) {
        on.connectTo(u"mnuAnalyseArray_0", [this] { m_texts->AnalyseJoystickFile(); });
        on.connectTo(u"mnuAnalyseArray_1", [this] { m_texts->AnalyseSelectedTextbox(); });
        on.connectTo(u"mnuReanalyse", [this] { m_texts->AnalyseSelectedTextbox(); });
    }
    on.connectTo(u"mnuApplyColours", [this] { m_texts->applyToAll(false); });
    on.connectTo(u"mnuApplyUMDcolours", [this] { m_texts->applyToAll(true); });
    on.connectTo(u"mnuTextboxColours", [this] { m_texts->applyToSelected(false); });
    on.connectTo(u"mnuTextboxUMDcolours", [this] { m_texts->applyToSelected(true); });
    on.connectTo(u"mnuTextboxFit", [this] { m_texts->fitSelected(); });
    on.connectTo(u"mnuFitText_0", [this] { m_texts->fitAll(); });
    on.connectTo(u"mnuFitText_1", [this] { m_texts->fitSelected(); });
    connect(m_texts, &SheetTexts::staleChanged, m_staleBar, &QWidget::setVisible);
    connect(m_transfer, &SheetTransfer::transferWanted, this, &SheetWindow::transferWanted);
    connect(&m_model, &SheetModel::changed, this, [this] {
        m_isLeft = false;
        refresh();
    });
    connect(&m_model, &SheetModel::selectedChanged, this, &SheetWindow::updateConditions);
    connect(&m_model, &SheetModel::stepsChanged, this, &SheetWindow::updateConditions);
}

void SheetWindow::updateConditions()
{
    const LayoutTextBox *box = m_model.selectedBox();
    m_actions->setCondition(SheetWhen::Box, box != nullptr);
    m_actions->setCondition(SheetWhen::Analysed,
                            box && m_kind != SheetKind::Custom
                                && m_model.selected() < analysedBoxCount(m_kind));
    m_actions->setCondition(SheetWhen::UndoReady, m_model.canUndo());
    m_actions->setCondition(SheetWhen::RedoReady, m_model.canRedo());
    m_actions->setCondition(SheetWhen::Layout, !m_files->path().isEmpty());
    const auto &settings = m_context.settings.of<LayoutsSettings>();
    const SheetSettings &own = sheetSettings(m_kind);
    m_actions->action(u"mnuAutoLayout")
        ->setChecked(settings.*own.usesAutomatic && !m_files->path().isEmpty()
                     && settings.*own.automatic == m_files->path());
    showTitle();
}

void SheetWindow::showTitle()
{
    const QString caption = captions[size_t(m_kind)].toString();
    setWindowTitle(m_files->path().isEmpty() ? caption
                                             : caption + u" - "_s + nameOf(m_files->path()));
}

/// Shows the sheet as the model has it now.
void SheetWindow::refresh()
{
    if (picturePaths() != m_shownPictures) {
        loadPictures();
        return;
    }
    m_view->showSheet(m_texts->withKeys(m_model.sheet()));
    const int overflowing = m_view->canvas().overflowing();
    m_overflow->setText(overflowing == 0       ? QString()
                            : overflowing == 1 ? u"1 textbox does not hold all of its text"_s
                                               : QString::number(overflowing)
                                + u" textboxes do not hold all of their text"_s);
    m_overflow->setVisible(overflowing > 0);
    const QString size = u"%1 by %2"_s.arg(m_model.sheet().width).arg(m_model.sheet().height);
    if (m_size->text() != size) {
        m_size->setText(size);
        m_output->showOrientation();
    }
    m_actions->tickOnly(u"mnuShowKeysArray"_s, m_context.settings.of<LayoutsSettings>().ShowKeys);
}

void SheetWindow::showRecent()
{
    m_recent->setCaptions(m_files->recent());
    m_actions->action(u"mnuPrevLO")->setEnabled(!m_files->recent().isEmpty());
}

void SheetWindow::GetLayoutOptions()
{
    const bool hides =
        ::zeph::GetLayoutOptions(settingsFilesOf(m_context.paths).layoutsIni, m_kind);
    m_actions->action(u"mnuViewToolBar")->setChecked(!hides);
    m_toolBar->setVisible(!hides);
}

void SheetWindow::SaveLayoutOptions()
{
    const bool hides = !m_actions->action(u"mnuViewToolBar")->isChecked();
    if (const auto kept =
            ::zeph::SaveLayoutOptions(settingsFilesOf(m_context.paths).layoutsIni, m_kind, hides);
        !kept) {
        tellNotKept(m_context.status, kept.error());
    }
}

void SheetWindow::AdjustLayoutSize(const QSize &size)
{
    Sheet sheet = m_model.sheet();
    sheet.width = size.width();
    sheet.height = size.height();
    if (m_context.settings.of<LayoutsSettings>().repositions()) {
        RepositionTextBoxes(sheet, m_image.controls, m_view->canvas().look().plain);
    }
    m_model.change(std::move(sheet));
}

void SheetWindow::ChangeLayoutProps()
{
    const Sheet &sheet = m_model.sheet();
    const auto paper = paperPixels(m_sources.ways.printers);
    LayoutSize dialog({ QSize(sheet.width, sheet.height), false,
                        m_context.settings.of<LayoutsSettings>().repositions() },
                      paper ? std::optional(defaultSheetSize(paper)) : std::nullopt, this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    if (const auto kept =
            keepLayoutSize(m_context.settings, settingsFilesOf(m_context.paths), dialog.choice());
        !kept) {
        tellNotKept(m_context.status, kept.error());
    }
    AdjustLayoutSize(dialog.choice().size);
}

bool SheetWindow::mayClose()
{
    m_isLeft = m_model.sheet() == m_asOpened || m_files->mayClose(m_model.sheet());
    return m_isLeft;
}

void SheetWindow::closeEvent(QCloseEvent *event)
{
    if (!m_isLeft && !mayClose()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}

} // namespace zeph
