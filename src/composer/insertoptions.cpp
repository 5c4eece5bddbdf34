// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/insertoptions.h"

#include "composer/composer_editor.h"
#include "composer/composer_keys.h"
#include "composer/composer_settings.h"
#include "composer/pages/analogueaxispage.h"
#include "composer/pages/composerpage.h"
#include "composer/pages/digitalaxispage.h"
#include "composer/pages/hatspage.h"
#include "composer/pages/logicalpage.h"
#include "composer/pages/mousepage.h"
#include "composer/pages/templatespage.h"
#include "composer/pages/usepage.h"
#include "composer/statementpreview.h"
#include "documents/document_settings.h"
#include "platform/dialogs.h"
#include "platform/input/keyboard.h"
#include "platform/status_line.h"
#include "platform/window_places.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "ui_insertoptions.h"

#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>

#include <algorithm>

namespace zeph {

namespace {

using MakePage = ComposerPage *(*)(const ComposerParts &parts, QWidget *parent);

template <class Page> ComposerPage *make(const ComposerParts &parts, QWidget *parent)
{
    return new Page(parts, parent);
}

struct PageRow {
    QStringView caption;
    int topic; ///< of the help
    MakePage make; ///< null while there is no such page
    std::array<QStringView, 2> lessons = {}; ///< entries of windows that teach its subject
};

// clang-format off
constexpr std::array<PageRow, InsertOptions::pageCount> pageRows = {
    PageRow{ u"&Composer", 2005, make<ComposerFirstPage>, { u"mnuShowMeSlashModifiers", u"mnuShowMeDLYandRATE" } },
    PageRow{ u"&Hats", 2010, make<HatsPage> },
    PageRow{ u"&Digital axis", 2015, make<DigitalAxisPage> },
    PageRow{ u"&Analogue axis", 2020, make<AnalogueAxisPage> },
    PageRow{ u"&Mouse / Microstick", 2025, make<MousePage>, { u"mnuShowMeMouseMicrostick" } },
    PageRow{ u"&Use / Misc.", 2030, make<UsePage>, { u"mnuShowMeConfigurationStatements", u"mnuShowMeDLYandRATE" } },
    PageRow{ u"Tem&plates", 2035, make<TemplatesPage> },
    PageRow{ u"&Logical", 2040, make<LogicalPage> },
};
// clang-format on

/// The pictures are large enough to point at, and it fits a screen of 1024 by 720 pixels.
constexpr QSize usualSize(980, 670);

} // namespace

InsertOptions::InsertOptions(const Context &context, Documents &documents, ComposerEditor &editor,
                             QWidget *parent)
    : QWidget(parent, Qt::Window), m_context(context), m_documents(documents), m_editor(editor),
      m_inserter(context, documents, editor), m_parts{ context, documents, m_inserter, editor },
      m_ui(std::make_unique<Ui::InsertOptions>()), m_layoutName(context.keyboard.layoutName())
{
    m_ui->setupUi(this);
    GetSpaces();
    for (const PageRow &row : pageRows) {
        auto *place = new QWidget(m_ui->SSTab1);
        auto *layout = new QVBoxLayout(place);
        layout->setContentsMargins({});
        m_ui->SSTab1->addTab(place, row.caption.toString());
    }
    m_preview = new StatementPreview(m_parts, m_ui->PlacePreview);
    m_ui->PlacePreview->layout()->addWidget(m_preview);
    connect(m_preview, &StatementPreview::readWanted, this,
            guarded(context.dialogs, [this] { readStatement(); }));
    connect(m_ui->Command6, &QPushButton::clicked, this, &InsertOptions::Command6_Click);
    connect(m_ui->CommandHelp, &QPushButton::clicked, this, &InsertOptions::CommandHelp_Click);
    connect(m_ui->SSTab1, &QTabWidget::currentChanged, this,
            guarded(context.dialogs, [this](int index) { enterPage(index); }));
    makeKeys();
    m_ui->CommandShowMeHow->setMenu(new QMenu(m_ui->CommandShowMeHow));
    m_preview->setPage(page(Composer));
    offerLessons(Composer);
    first().CopyMacroList();
    PositionComposer();
}

InsertOptions::~InsertOptions() = default;

ComposerFirstPage &InsertOptions::first()
{
    return static_cast<ComposerFirstPage &>(*page(Composer));
}

ComposerPage *InsertOptions::page(Page which)
{
    ComposerPage *&made = m_pages[which];
    if (!made && pageRows[which].make) {
        QWidget *place = m_ui->SSTab1->widget(which);
        made = pageRows[which].make(m_parts, place);
        place->layout()->addWidget(made);
        // The layout would show it only when the event loop runs, too late for the focus.
        made->show();
        bindLineEndBoxes(*made);
        reachAfterTabs(*made);
        connect(made, &ComposerPage::helpWanted, this, &InsertOptions::keywordWanted);
        connect(made, &ComposerPage::flagsWanted, this, &InsertOptions::flagsWanted);
        made->windowActivated();
    }
    return made;
}

void InsertOptions::showPage(Page which)
{
    if (m_ui->SSTab1->currentIndex() == which) {
        enterPage(which);
    } else {
        m_ui->SSTab1->setCurrentIndex(which);
    }
}

void InsertOptions::enterPage(int index)
{
    ComposerPage *entered = page(Page(index));
    m_preview->setPage(entered);
    offerLessons(index);
    if (entered) {
        entered->enter();
    }
}

void InsertOptions::offerLessons(int page)
{
    QMenu &menu = *m_ui->CommandShowMeHow->menu();
    menu.clear();
    for (const QStringView entry : pageRows[size_t(page)].lessons) {
        if (!entry.isEmpty()) {
            menu.addAction(m_editor.action(entry));
        }
    }
    m_ui->CommandShowMeHow->setEnabled(!menu.isEmpty());
}

void InsertOptions::turnPage(int step)
{
    const int next = m_ui->SSTab1->currentIndex() + step + pageCount;
    m_ui->SSTab1->setCurrentIndex(next % pageCount);
}

void InsertOptions::makeKeys()
{
    addEditorKeys(*this, m_context, m_editor);
    const auto add = [this](QKeySequence key, auto act) {
        auto *shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, guarded(m_context.dialogs, act));
    };
    add(Qt::Key_F1, [this] { CommandHelp_Click(); });
    add(QKeyCombination(Qt::CTRL, Qt::Key_Tab), [this] { turnPage(1); });
    add(QKeyCombination(Qt::CTRL | Qt::SHIFT, Qt::Key_Tab), [this] { turnPage(-1); });
}

void InsertOptions::reachAfterTabs(const ComposerPage &made)
{
    // Tab would reach a new page after the buttons below all pages.
    QWidget *last = m_ui->SSTab1;
    QWidgetList below;
    for (QWidget *each = last; (each = each->nextInFocusChain()) != m_ui->SSTab1;) {
        if (each->isWindow() || each->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        if (made.isAncestorOf(each)) {
            last = each;
        } else if (!m_ui->SSTab1->isAncestorOf(each)) {
            below.append(each);
        }
    }
    // As one reads: the preview is left of the window's buttons.
    std::stable_partition(below.begin(), below.end(),
                          [this](const QWidget *each) { return m_preview->isAncestorOf(each); });
    for (QWidget *each : below) {
        setTabOrder(last, each);
        last = each;
    }
}

void InsertOptions::bindLineEndBoxes(ComposerPage &made)
{
    static const QRegularExpression name(u"^CheckMultiAddCR_\\d$"_s);
    for (QCheckBox *box : made.findChildren<QCheckBox *>(name)) {
        m_lineEndBoxes.append(box);
        connect(box, &QCheckBox::toggled, this, [this](bool on) {
            m_context.settings.of<ComposerSettings>().CompTabsAddCr = on;
            showAddsLineEnd();
        });
    }
    showAddsLineEnd();
}

void InsertOptions::showAddsLineEnd()
{
    for (QCheckBox *box : m_lineEndBoxes) {
        const QSignalBlocker blocker(box);
        box->setChecked(m_context.settings.of<ComposerSettings>().CompTabsAddCr);
    }
}

void InsertOptions::readStatement()
{
    const QList<ReadStatement> readable =
        readableAt(m_documents.joystick().text(), m_documents.joystick().cursor().position());
    if (readable.isEmpty()) {
        m_context.status.setText(u" The caret of the joystick file is in no statement"_s);
        return;
    }
    // More than one page may know a statement, or a part of it. So the page in front is asked for
    // everything first.
    const int front = m_ui->SSTab1->currentIndex();
    for (const ReadStatement &read : readable) {
        if (readInto(Page(front), read)) {
            return;
        }
    }
    for (const ReadStatement &read : readable) {
        for (int index = 0; index < pageCount; ++index) {
            if (index != front && readInto(Page(index), read)) {
                return;
            }
        }
    }
    m_context.status.setText(
        u" No page of the Composer makes statements like the one at the caret"_s);
}

bool InsertOptions::readInto(Page which, const ReadStatement &read)
{
    ComposerPage *asked = page(which);
    if (!asked || !asked->read(read.text)) {
        return false;
    }
    m_ui->SSTab1->setCurrentIndex(which);
    m_preview->setRead(read);
    return true;
}

void InsertOptions::GetSpaces()
{
    tellProblems(
        m_context.dialogs,
        readGroup(m_context.settings.group<ComposerSettings>(), settingsFilesOf(m_context.paths)));
}

void InsertOptions::SaveSpaces()
{
    auto &settings = m_context.settings.of<ComposerSettings>();
    const QPoint corner = normalPlace(*this).topLeft();
    if (corner.x() >= 0 && corner.y() >= 0) {
        settings.ComposerTop = twipsFromPixels(corner.y());
        settings.ComposerLeft = twipsFromPixels(corner.x());
    }
    // Another window owns whether DirectX axes 9 and 10 are offered.
    const auto kept = [](const SettingKey &key) {
        return key.section != rowOf(&ComposerSettings::ShowDX9to10).section;
    };
    if (const auto saved = saveGroup(m_context.settings.group<ComposerSettings>(),
                                     settingsFilesOf(m_context.paths), kept);
        !saved) {
        tellNotKept(m_context.status, saved.error());
    }
}

void InsertOptions::PositionComposer()
{
    resize(usualSize.expandedTo(minimumSizeHint()).boundedTo(screen()->availableSize()));
    const auto &settings = m_context.settings.of<ComposerSettings>();
    const bool hadPlace =
        !ProfileFile(m_context.paths.iniPath).text(u"Composer", u"ComposerLeft").isEmpty();
    if (!hadPlace && parentWidget()) {
        openBeside(*this, *parentWidget()->window());
        return;
    }
    const QPoint corner = composerCorner(settings, screen()->size());
    restorePlace(*this, { corner, QSize() });
}

void InsertOptions::macroListChanged()
{
    m_macrosAreOld = true;
    if (isVisible()) {
        // A file that is opened empties the list before it fills it.
        QTimer::singleShot(0, this, [this] {
            if (std::exchange(m_macrosAreOld, false)) {
                first().CopyMacroList();
            }
        });
    }
}

void InsertOptions::ticksChanged()
{
    if (!m_macrosAreOld) {
        first().showTicks();
    }
}

void InsertOptions::selectMacro(const QString &macro)
{
    first().selectMacro(macro);
}

void InsertOptions::settingsChanged()
{
    showAddsLineEnd();
    for (ComposerPage *each : m_pages) {
        if (each) {
            each->windowActivated();
        }
    }
}

void InsertOptions::activated()
{
    if (std::exchange(m_macrosAreOld, false)
        || m_context.settings.of<ComposerSettings>().COMPMacrosTickedCopy) {
        first().CopyMacroList();
    }
    settingsChanged();
    Keyboard &keyboard = m_context.keyboard;
    if (m_context.settings.of<DocumentSettings>().ForeignLanguageKBInputFix
        && keyboard.layoutName() != m_layoutName) {
        keyboard.loadLayout(m_layoutName);
    }
}

void InsertOptions::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        guarded(m_context.dialogs, [this] { activated(); })();
    }
}

void InsertOptions::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        Command6_Click();
        return;
    }
    QWidget::keyPressEvent(event);
}

void InsertOptions::closeEvent(QCloseEvent *event)
{
    SaveSpaces();
    QWidget::closeEvent(event);
}

void InsertOptions::Command6_Click()
{
    hide();
    returnToEditor(*this, m_editor);
}

void InsertOptions::CommandHelp_Click()
{
    Q_EMIT helpWanted(pageRows[size_t(m_ui->SSTab1->currentIndex())].topic);
}

} // namespace zeph
