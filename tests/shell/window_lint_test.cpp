// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/mouse/mousemanual.h"
#include "composer/mouse/mouseprogram.h"
#include "composer/statement_inserter.h"
#include "composer/tumbo/rawform.h"
#include "composer/wizards/speedy.h"
#include "composer/wizards/wizardjoystickfile.h"
#include "composer/wizards/wizardmacrofile.h"
#include "cougar/controls_picture.h"
#include "documents/documents.h"
#include "documents/styleeditor.h"
#include "editor/edit/findandreplace.h"
#include "editor/edit/insert_windows.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/files/frm_createpackage.h"
#include "editor/macros/macrorenameform.h"
#include "layouts/files/layoutsave.h"
#include "layouts/files/layoutsize.h"
#include "layouts/window/customformatter.h"
#include "layouts/window/customtweaker.h"
#include "layouts/window/formgridcellsize.h"
#include "layouts/window/frmtextboxsize.h"
#include "layouts/window/sheet_window.h"
#include "layouts/window/showhidewindow.h"
#include "layouts/window/ubbandhtmlview.h"
#include "lists/favourites_menu.h"
#include "lists/user_lists.h"
#include "livetools/keytestform.h"
#include "livetools/pictures/viewimage.h"
#include "livetools/quickview/coverage_window.h"
#include "livetools/quickview/quickview.h"
#include "platform/fakes/fake_joystick.h"
#include "platform/tool_windows.h"
#include "preferences/preferences.h"
#include "print/printpreview.h"
#include "shell/composer_tools.h"
#include "shell/frmabout.h"
#include "shell/frmtip.h"
#include "shell/helpwindow.h"
#include "shell/informationwindow.h"
#include "shell/mum.h"
#include "shell/welcome.h"
#include "templates/templateform.h"
#include "tests/support/shell_world.h"
#include "text/macro_table.h"
#include "toolchain/games/gamefields.h"
#include "toolchain/games/games.h"
#include "toolchain/modes/profilechooser.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>

#include <functional>

using namespace zeph;

namespace {

bool isOfTheToolkit(const QWidget &control)
{
    return control.objectName().startsWith(u"qt_")
        || qobject_cast<QTabBar *>(control.parentWidget())
        || control.inherits("QComboBoxPrivateContainer");
}

bool isOperated(const QWidget &control)
{
    return qobject_cast<const QAbstractButton *>(&control)
        || qobject_cast<const QLineEdit *>(&control) || qobject_cast<const QComboBox *>(&control)
        || qobject_cast<const QTextEdit *>(&control)
        || qobject_cast<const QAbstractItemView *>(&control);
}

/// What a control with an own mnemonic says.
QString captionOf(const QWidget &control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
        return button->text();
    }
    const auto *label = qobject_cast<const QLabel *>(&control);
    return label && label->buddy() ? label->text() : QString();
}

/// The page of a stack that a control stands on, or the window: mnemonics must be unique there.
const QWidget *pageOf(const QWidget &control)
{
    const QWidget *page = control.parentWidget();
    while (!page->isWindow() && !qobject_cast<const QStackedWidget *>(page->parentWidget())) {
        page = page->parentWidget();
    }
    return page;
}

using MakeWindow = std::function<std::unique_ptr<QWidget>(test::ShellWorld &)>;

enum OnEscape { ClosesDialogs, ShowsEscape };

struct LintCase {
    const char *name;
    MakeWindow make;
    OnEscape onEscape = ClosesDialogs;
};

std::ostream &operator<<(std::ostream &out, const LintCase &lint)
{
    return out << lint.name;
}

std::unique_ptr<QWidget> makeMum(test::ShellWorld &world)
{
    auto mum = std::make_unique<Mum>(world.context());
    mum->attachEditor(new Editor(world.context(), mum.get()));
    return mum;
}

/// The find window with an Editor of its own to search in, which goes after it.
std::unique_ptr<QWidget> makeFindAndReplace(test::ShellWorld &world)
{
    auto *editor = new Editor(world.context());
    auto window =
        std::make_unique<FindAndReplace>(world.context(), FindAndReplace::Parts{ editor->view() });
    QObject::connect(window.get(), &QObject::destroyed, [editor] { delete editor; });
    return window;
}

/// Preferences with an Editor and lists of its own, which go after it.
std::unique_ptr<QWidget> makePreferences(test::ShellWorld &world)
{
    auto *editor = new Editor(world.context());
    auto *lists = new UserLists(world.context(), *editor);
    auto *games = new Games(world.paths.iniPath, editor);
    auto window =
        std::make_unique<Preferences>(world.context(), Preferences::Parts{ *lists, *games },
                                      PreferencesHost{ [] {},
                                                       [] {
                                                       } });
    QObject::connect(window.get(), &QObject::destroyed, [editor] { delete editor; });
    return window;
}

/// What the wizards work with.
struct WizardBench {
    explicit WizardBench(test::ShellWorld &world)
        : editor(world.context()), windows(&editor),
          tools(*new ComposerTools(world.context(), windows, editor)),
          inserter(world.context(), editor.documents(), tools),
          parts{ world.context(), editor.documents(), inserter, tools }
    {
    }

    Editor editor;
    ToolWindows windows;
    ComposerTools &tools; ///< the Editor's
    StatementInserter inserter;
    ComposerParts parts;
};

/// A window that works with these, which go after it.
template <class Window> std::unique_ptr<QWidget> makeWizard(test::ShellWorld &world)
{
    auto *bench = new WizardBench(world);
    std::unique_ptr<QWidget> window;
    if constexpr (std::is_same_v<Window, MouseProgram> || std::is_same_v<Window, MouseManual>
                  || std::is_same_v<Window, RAWform>) {
        window = std::make_unique<Window>(world.context(), bench->editor.documents(), bench->tools);
    } else if constexpr (std::is_same_v<Window, WizardJoystickFile>) {
        window = std::make_unique<Window>(bench->parts, bench->windows);
    } else {
        window = std::make_unique<Window>(bench->parts);
    }
    QObject::connect(window.get(), &QObject::destroyed, [bench] { delete bench; });
    return window;
}

/// A sheet's window with documents of its own, which go after it.
template <class Window> std::unique_ptr<QWidget> makeSheet(test::ShellWorld &world)
{
    struct Bench {
        explicit Bench(test::ShellWorld &w) : documents(w.context()) { }
        Documents documents;
        MacroTable macros;
        QAction viewer;
    };
    auto *bench = new Bench(world);
    auto window = std::make_unique<Window>(
        world.context(),
        SheetSources{
            bench->documents, bench->macros, { world.printers, world.screen, bench->viewer } });
    QObject::connect(window.get(), &QObject::destroyed, [bench] { delete bench; });
    return window;
}

std::unique_ptr<QWidget> makeShowHide(test::ShellWorld &world)
{
    auto sheet = makeSheet<CustomLayout>(world);
    auto *owner = static_cast<CustomLayout *>(sheet.get());
    auto window = std::make_unique<ShowHideWindow>(SheetKind::Custom, owner->model(),
                                                   owner->actions(), nullptr);
    QObject::connect(window.get(), &QObject::destroyed, [owner] { delete owner; });
    (void)sheet.release();
    return window;
}

const LintCase cases[] = {
    { "GraphicsPrint", makeSheet<GraphicsPrint> },
    { "TQSLayout", makeSheet<TQSLayout> },
    { "CustomLayout", makeSheet<CustomLayout> },
    { "HideForCleo", makeShowHide },
    { "FrmTextBoxSize",
      [](auto &) {
          static SheetModel model{ emptySheet(SheetKind::Joystick) };
          return std::make_unique<FrmTextBoxSize>(model, nullptr);
      } },
    { "FormGridCellSize",
      [](auto &) {
          return std::make_unique<FormGridCellSize>(5);
      } },
    { "CustomTweaker",
      [](auto &) {
          return std::make_unique<CustomTweaker>(LayoutsSettings());
      } },
    { "CustomFormatter",
      [](auto &w) {
          return std::make_unique<CustomFormatter>(ProfileFile(w.paths.inApp(u"Layouts.ini")),
                                                   w.dialogs, nullptr);
      } },
    { "UBBandHTMLview",
      [](auto &) {
          return std::make_unique<UBBandHTMLview>(RichText::plain(u"BTN S1"_s), 0);
      } },
    { "WizardMacroFile", makeWizard<WizardMacroFile> },
    { "WizardJoystickFile", makeWizard<WizardJoystickFile> },
    { "Speedy", makeWizard<Speedy> },
    { "RAWform", makeWizard<RAWform> },
    { "MouseProgram", makeWizard<MouseProgram> },
    { "MouseManual", makeWizard<MouseManual> },
    { "WizardSlashModifiers", makeWizard<WizardSlashModifiers> },
    { "WizardMouseMicrostick", makeWizard<WizardMouseMicrostick> },
    { "WizardDLYandRATE", makeWizard<WizardDLYandRATE> },
    { "WizardConfigurationStatements", makeWizard<WizardConfigurationStatements> },
    { "Preferences", makePreferences },
    { "frmTip",
      [](auto &w) {
          return std::make_unique<frmTip>(w.paths, w.settings);
      } },
    { "frmAbout",
      [](auto &w) {
          return std::make_unique<frmAbout>(w.paths);
      } },
    { "HelpWindow",
      [](auto &w) {
          return std::make_unique<HelpWindow>(w.paths, w.dialogs, w.launcher);
      } },
    { "InformationWindow",
      [](auto &w) {
          return std::make_unique<InformationWindow>(w.dialogs);
      } },
    { "Welcome",
      [](auto &w) {
          return std::make_unique<Welcome>(w.context(), WelcomeAnswers(), 100000);
      } },
    { "MacroRenameForm",
      [](auto &w) {
          return std::make_unique<MacroRenameForm>(
              w.dialogs, MacroRenameForm::Names{ { u"Fire"_s }, u"Fire"_s });
      } },
    { "StyleEditor",
      [](auto &w) {
          return std::make_unique<StyleEditor>(defaultTextStyles(), 0xFFFFFF, w.dialogs);
      } },
    { "LayoutSave",
      [](auto &) {
          return std::make_unique<LayoutSave>(QStringList{ u"Falcon"_s });
      } },
    { "LayoutSaveText",
      [](auto &) {
          return std::make_unique<LayoutSaveText>(QStringList{ u"Falcon"_s });
      } },
    { "LayoutSize",
      [](auto &) {
          return std::make_unique<LayoutSize>(LayoutSizeChoice{ QSize(1043, 714), false, true },
                                              QSize(800, 963));
      } },
    { "FindAndReplace", makeFindAndReplace },
    { "FormResetOptions",
      [](auto &w) {
          return std::make_unique<FormResetOptions>(w.context());
      } },
    { "SelectProfileForm",
      [](auto &w) {
          return std::make_unique<SelectProfileForm>(w.context());
      } },
    { "EnterGameName",
      [](auto &w) {
          return std::make_unique<EnterGameName>(w.paths, w.dialogs, QString());
      } },
    { "EnterFavouritename",
      [](auto &) {
          return std::make_unique<EnterFavouritename>();
      } },
    { "KeyTestForm",
      [](auto &w) { return std::make_unique<KeyTestForm>(w.context(), KeyTestEntries()); },
      ShowsEscape },
    { "CoverageWindow",
      [](auto &w) {
          return std::make_unique<CoverageWindow>(w.context());
      } },
    { "QuickView",
      [](auto &w) {
          static FakeJoystick stick;
          static const MacroTable noMacros;
          auto documents = std::make_unique<Documents>(w.context());
          auto window = std::make_unique<QuickView>(
              w.context(), QuickViewSources{ *documents, noMacros, stick });
          documents.release()->setParent(window.get());
          return window;
      } },
    { "ViewImage",
      [](auto &w) {
          auto *entry = new QAction;
          auto window =
              std::make_unique<ViewImage>(w.context(), w.printers, PictureEntries{ entry, entry });
          entry->setParent(window.get());
          return window;
      } },
    { "Heading",
      [](auto &) {
          return std::make_unique<Heading>(QStringList{ u"Guns"_s });
      } },
    { "SingleTextForm",
      [](auto &) {
          return std::make_unique<SingleTextForm>(true);
      } },
    { "Title",
      [](auto &) {
          return std::make_unique<Title>(TitleFields());
      } },
    { "SlashWindow",
      [](test::ShellWorld &w) {
          return std::make_unique<SlashWindow>(w.settings.of<EditorSettings>());
      } },
    { "Frm_CreatePackage",
      [](auto &w) {
          return std::make_unique<Frm_CreatePackage>(w.context(), PackageFields());
      } },
    { "PrintPreview",
      [](auto &w) {
          return std::make_unique<PrintPreview>(
              w.context(), w.printers,
              PrintJob{ u"Sample.tmj"_s, RichText::plain(u"BTN S1 a"_s), {} }, w.folder.path());
      } },
    { "TemplateForm",
      [](auto &w) {
          static const MacroTable noMacros;
          return std::make_unique<TemplateForm>(w.context(), w.printers, noMacros);
      } },
    { "Mum", makeMum },
};

class WindowLint : public test::ShellWorld, public testing::WithParamInterface<LintCase>
{
public:
    void SetUp() override
    {
        for (const auto *picture : { u"Zeph.bmp", u"Welcome.bmp" }) {
            installData(QString::fromUtf16(picture));
        }
        window = GetParam().make(*this);
    }
    QList<QWidget *> controls() const
    {
        QList<QWidget *> found;
        for (QWidget *control : window->findChildren<QWidget *>()) {
            if (!isOfTheToolkit(*control) && !qobject_cast<QMenu *>(control)) {
                found.append(control);
            }
        }
        return found;
    }

    /// Among neighbours, nothing that the Tab key reaches later stands wholly above what it left.
    void checkTabKey() const
    {
        const QWidget *last = nullptr;
        for (const QWidget *next = window->nextInFocusChain(); next != window.get();
             next = next->nextInFocusChain()) {
            if (!isOperated(*next) || !(next->focusPolicy() & Qt::TabFocus) || !next->isVisible()) {
                continue;
            }
            // A picture has its controls in their own order.
            if (qobject_cast<const ControlsPicture *>(next->parentWidget())) {
                continue;
            }
            if (last && last->parentWidget() == next->parentWidget()) {
                EXPECT_GE(next->geometry().bottom(), last->geometry().top())
                    << last->objectName().toStdString() << " before "
                    << next->objectName().toStdString();
            }
            last = next;
        }
    }

    std::unique_ptr<QWidget> window;
};

} // namespace

TEST_P(WindowLint, IsCalledByItsName)
{
    EXPECT_EQ(window->objectName().toStdString(), GetParam().name);
    EXPECT_FALSE(window->windowTitle().isEmpty());
}

TEST_P(WindowLint, EveryControlThatIsOperatedHasAName)
{
    QSet<QString> names;
    for (const QWidget *control : controls()) {
        if (!isOperated(*control) || isOfTheToolkit(*control->parentWidget())
            || qobject_cast<const QLineEdit *>(control->parentWidget())) {
            continue;
        }
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(names.contains(control->objectName())) << control->objectName().toStdString();
        names.insert(control->objectName());
    }
}

TEST_P(WindowLint, NoMnemonicStandsTwiceOnAPage)
{
    QMap<std::pair<const QWidget *, QString>, QString> seen;
    for (const QWidget *control : controls()) {
        const QString caption = captionOf(*control);
        const QString key = QKeySequence::mnemonic(caption).toString();
        if (key.isEmpty()) {
            continue;
        }
        const std::pair place(pageOf(*control), key);
        EXPECT_FALSE(seen.contains(place))
            << caption.toStdString() << " and " << seen.value(place).toStdString();
        seen.insert(place, caption);
    }
}

TEST_P(WindowLint, PicturesAndFieldsWithoutACaptionHaveAnAccessibleName)
{
    QSet<const QWidget *> captioned;
    for (const QWidget *control : controls()) {
        if (const auto *label = qobject_cast<const QLabel *>(control); label && label->buddy()) {
            captioned.insert(label->buddy());
        }
    }
    for (const QWidget *control : controls()) {
        const auto *label = qobject_cast<const QLabel *>(control);
        const bool isPicture = label && !label->pixmap().isNull();
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        const bool needsName = isPicture || (button && button->text().isEmpty())
            || qobject_cast<const QLineEdit *>(control);
        if (!needsName || captioned.contains(control) || isOfTheToolkit(*control->parentWidget())
            || qobject_cast<const QLineEdit *>(control->parentWidget())) {
            continue;
        }
        EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
    }
}

TEST_P(WindowLint, TheFirstTabIsInFront)
{
    for (const auto *tabs : window->findChildren<QTabWidget *>()) {
        EXPECT_EQ(tabs->currentIndex(), 0) << tabs->objectName().toStdString();
    }
}

TEST_P(WindowLint, EscapeClosesADialogAndNothingElse)
{
    window->show();
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(window->isVisible(),
              qobject_cast<QMainWindow *>(window.get()) || GetParam().onEscape == ShowsEscape);
}

TEST_P(WindowLint, TheTabKeyGoesDownEachPage)
{
    window->show();
    checkTabKey();
    for (QStackedWidget *stack : window->findChildren<QStackedWidget *>()) {
        for (int i = 1; i < stack->count(); ++i) {
            stack->setCurrentIndex(i);
            QCoreApplication::processEvents();
            checkTabKey();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Shell, WindowLint, testing::ValuesIn(cases),
                         [](const auto &instance) { return std::string(instance.param.name); });
