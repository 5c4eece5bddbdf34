// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/colourspage.h"

#include "documents/coloured_text.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_list_model.h"
#include "platform/colours.h"
#include "platform/dialogs.h"
#include "platform/swatch.h"
#include "preferences/colour_sample.h"
#include "preferences/colour_scheme.h"
#include "settings/settings.h"
#include "text/macro_search.h"
#include "text/text_styles.h"
#include "ui_colourspage.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace zeph {

namespace {

constexpr QSize swatchSize(26, 14);
constexpr int sampleListWidth = 230;

bool isEnter(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

ColoursPage::ColoursPage(const Context &context, QWidget *parent)
    : PreferencesPage(parent), m_context(context), m_scheme(context.settings.of<ColourSettings>()),
      m_ui(std::make_unique<Ui::ColoursPage>())
{
    m_ui->setupUi(this);
    addMacroList();
    m_list->setWidth(sampleListWidth);
    AddColourTabStuff();
    connectFields();
    m_ui->List1->setCurrentRow(0);
}

ColoursPage::~ColoursPage() = default;

void ColoursPage::addMacroList()
{
    m_macros = new MacroListModel(this);
    m_list = new FrameMacros(*m_macros);
    m_list->setObjectName(u"SampleMacroList"_s);
    m_list->list().setObjectName(u"SampleList"_s);
    m_list->list().setToolTip(u"Your colours on a macro list"_s);
    m_list->list().setDragDropMode(QAbstractItemView::NoDragDrop);
    m_list->headings().setObjectName(u"SampleHeadings"_s);
    // The width of the macro list is changed in the Editor only.
    m_list->findChild<QWidget *>(u"MacroEdge"_s)->hide();
    m_ui->layoutMacroList->insertWidget(0, m_list);
    connect(&m_list->headings(), &QComboBox::currentIndexChanged, m_macros,
            &MacroListModel::showHeading);
}

void ColoursPage::AddColourTabStuff()
{
    m_ui->List1->setIconSize(swatchSize);
    for (const ColourCategory &category : colourCategories()) {
        auto *item = new QListWidgetItem(category.caption.toString(), m_ui->List1);
        item->setToolTip(category.paints.toString());
    }
    m_ui->TextFontSize->setRange(smallestStyleSize, largestStyleSize);
    for (TextControl *sample : { m_ui->SampleJoystick, m_ui->SampleMacro }) {
        sample->shown().setLocked(true);
        sample->setTabChangesFocus(true);
    }
    m_ui->SampleJoystick->shown().setText(sampleJoystickText());
    m_ui->SampleMacro->shown().setText(sampleMacroText());
    const MacroTable macros = sampleMacros();
    m_list->setHeadings(macros.MacroHeadings);
    m_macros->setNames(macros.names);
    const QStringList &names = m_macros->allNames();
    const QList<bool> used = usedMacros(sampleJoystickText(), names);
    for (qsizetype i = 0; i < names.size(); ++i) {
        m_macros->setTick(names[i], used[i]);
    }
    showScheme();
    const int frame = 2 * (m_ui->List1->frameWidth() + m_ui->List1->spacing());
    m_ui->List1->setMinimumWidth(m_ui->List1->sizeHintForColumn(0) + frame);
}

void ColoursPage::connectFields()
{
    Dialogs &dialogs = m_context.dialogs;
    const auto change = guarded(dialogs, [this](const auto &...) { changeColour(); });
    connect(m_ui->List1, &QListWidget::currentRowChanged, this, &ColoursPage::choose);
    connect(m_ui->List1, &QListWidget::itemDoubleClicked, this, change);
    connect(m_ui->CMD_ChangeColour, &QPushButton::clicked, this, change);
    connect(m_ui->CMD_FirstRunColours, &QPushButton::clicked, this,
            guarded(dialogs, [this](bool) { returnToFirstRun(); }));
    connect(m_ui->CMD_DarkColours, &QPushButton::clicked, this,
            guarded(dialogs, [this](bool) { takeDarkColours(); }));
    m_ui->List1->installEventFilter(this);
    connect(m_ui->TextFontName, &QComboBox::currentTextChanged, this, [this](const QString &name) {
        m_scheme.TextFontName = name;
        ApplyColour();
    });
    connect(m_ui->TextFontSize, &QSpinBox::valueChanged, this, [this](int points) {
        m_scheme.TextFontSize = points;
        ApplyColour();
    });
    connect(m_ui->TextFontBold, &QCheckBox::toggled, this, [this](bool bold) {
        m_scheme.TextFontBold = bold;
        ApplyColour();
    });
    connect(m_ui->CHK_FixedPitch, &QCheckBox::toggled, this, &ColoursPage::showFonts);
    connect(m_ui->CMD_FontHelp, &QPushButton::clicked, this, [&dialogs] {
        dialogs.tell(u"Lining up slash modifiers"_s,
                     u"If you want all your slash modifiers to line up as they do in Notepad, "
                     "choose a fixed pitch font, like Courier New."_s);
    });
}

void ColoursPage::collect()
{
    m_context.settings.of<ColourSettings>() = m_scheme;
}

/// Shows the scheme in the fields. A value that a field cannot show, such as a size outside its
/// range, stays in the scheme.
void ColoursPage::showScheme()
{
    const QSignalBlocker size(m_ui->TextFontSize);
    const QSignalBlocker bold(m_ui->TextFontBold);
    m_ui->TextFontSize->setValue(qRound(m_scheme.TextFontSize));
    m_ui->TextFontBold->setChecked(m_scheme.TextFontBold);
    showFonts();
    ApplyColour();
}

void ColoursPage::showFonts()
{
    const QSignalBlocker blocker(m_ui->TextFontName);
    const bool fixedOnly = m_ui->CHK_FixedPitch->isChecked();
    m_ui->TextFontName->clear();
    m_ui->TextFontName->addItems(
        fontChoices(QFontDatabase::families(), fixedOnly ? QString() : m_scheme.TextFontName,
                    [fixedOnly](const auto &name) {
                        return !QFontDatabase::isPrivateFamily(name)
                            && (!fixedOnly || QFontDatabase::isFixedPitch(name));
                    }));
    // The chosen font may not be in the list of fixed-pitch ones.
    m_ui->TextFontName->setPlaceholderText(m_scheme.TextFontName);
    m_ui->TextFontName->setCurrentIndex(
        m_ui->TextFontName->findText(m_scheme.TextFontName, Qt::MatchFixedString));
}

void ColoursPage::showSwatches()
{
    int row = 0;
    for (const ColourCategory &category : colourCategories()) {
        const ColorRef colour = m_scheme.*category.colour;
        QListWidgetItem *item = m_ui->List1->item(row++);
        item->setIcon(swatchOf(colour, swatchSize, devicePixelRatioF()));
        item->setData(Qt::AccessibleTextRole, item->text() + u", "_s + toColor(colour).name());
    }
}

void ColoursPage::ColourJoy()
{
    showSample(*m_ui->SampleJoystick, DocumentKind::Joystick, m_scheme);
}

void ColoursPage::ColourMac()
{
    showSample(*m_ui->SampleMacro, DocumentKind::Macro, m_scheme);
}

void ColoursPage::ApplyColour()
{
    ColourJoy();
    ColourMac();
    m_list->setColours(m_scheme);
    showSwatches();
}

void ColoursPage::choose(int row)
{
    if (row < 0) {
        return;
    }
    const ColourCategory &category = colourCategories()[size_t(row)];
    m_ui->LabelPaints->setText(category.paints.toString());
    const auto present = PreviewPage(m_ui->SSTab2->currentIndex());
    m_ui->SSTab2->setCurrentIndex(int(previewPageFor(category, present)));
}

void ColoursPage::changeColour()
{
    const int row = m_ui->List1->currentRow();
    if (row < 0) {
        return;
    }
    ColorRef &colour = m_scheme.*colourCategories()[size_t(row)].colour;
    if (const auto chosen = m_context.dialogs.chooseColour(colour)) {
        colour = *chosen;
        ApplyColour();
    }
}

void ColoursPage::returnToFirstRun()
{
    if (m_context.dialogs.ask(u"Back to where we started?"_s,
                              u"All your colours and your font go, and those that I came with "
                              "come back. Is that what you want?"_s)) {
        setFirstRunColours(m_scheme);
        showScheme();
    }
}

void ColoursPage::takeDarkColours()
{
    if (m_context.dialogs.ask(u"Shall I turn off the lights?"_s,
                              u"All your colours go, and my dark ones take their place. Your font "
                              "stays. Is that what you want?"_s)) {
        setDarkColours(m_scheme);
        showScheme();
    }
}

bool ColoursPage::eventFilter(QObject *watched, QEvent *event)
{
    // The list would pass the key on, and the window would close with OK.
    if (watched == m_ui->List1 && isEnter(*event)) {
        m_ui->CMD_ChangeColour->click();
        return true;
    }
    return PreferencesPage::eventFilter(watched, event);
}

} // namespace zeph
