// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/usepage.h"

#include "composer/placement.h"
#include "composer/statement_inserter.h"
#include "platform/dialogs.h"
#include "platform/field_text.h"
#include "text/profile_files.h"
#include "ui_usepage.h"

#include <QFontDatabase>

namespace zeph {

namespace {

constexpr int endOfText = int(std::ranges::find(useTexts, &UseFields::application)
                              - useTexts.begin()); ///< the box whose end matters most

/// The first control of a group that the Tab key reaches.
QWidget *firstControlOf(const QWidget &group)
{
    for (QWidget *control : group.findChildren<QWidget *>()) {
        if ((control->focusPolicy() & Qt::TabFocus) && control->isEnabled()
            && !qobject_cast<QLabel *>(control)) {
            return control;
        }
    }
    return nullptr;
}

QStringList namesOf(std::span<const QStringView> words)
{
    QStringList names;
    for (const QStringView word : words) {
        names.append(word.toString());
    }
    return names;
}

} // namespace

UsePage::UsePage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::UsePage>())
{
    m_ui->setupUi(this);
    m_texts = { this, u"TXT_USE"_s };
    m_ticks = { this, u"CHK_Use"_s };
    m_lists = { this, u"ComboUSEDX"_s };
    m_groups = { this, u"GroupUse"_s };
    for (QLabel *label : findChildren<QLabel *>()) {
        if (label->objectName().startsWith(u"LabelSample")) {
            label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        }
    }
    fillLists();
    UpdateProfiles();
    showFields({});
    connectTabs();
    for (int i = 0; i < m_groups.count(); ++i) {
        connectGroup(i);
    }
    connectRest();
}

UsePage::~UsePage() = default;

void UsePage::fillLists()
{
    const QStringList controls = namesOf(useControls);
    m_lists[0]->addItems(controls);
    for (int number = 1; number <= language::lastDirectXButton; ++number) {
        m_lists[1]->addItem(QString::number(number));
    }
    m_lists[2]->addItems(controls);
    m_lists[3]->addItems(namesOf(language::wordsOf<language::HatRole>()));
    for (const WindowStyleRow &row : windowStyles) {
        m_lists[4]->addItem(QString::number(int(row.style)));
    }
}

void UsePage::connectTabs()
{
    for (QTabWidget *tabs : { m_ui->SSTab5, m_ui->SSTab8, m_ui->SSTab6 }) {
        connect(tabs, &QTabWidget::currentChanged, this, &ComposerPage::changed);
    }
}

void UsePage::connectGroup(int index)
{
    const auto use = [this, index] {
        useGroup(index);
    };
    const QWidget *group = m_groups[index];
    for (QWidget *control : group->findChildren<QWidget *>()) {
        control->installEventFilter(this);
    }
    for (auto *text : group->findChildren<QLineEdit *>()) {
        connect(text, &QLineEdit::textChanged, this, use);
    }
    for (auto *list : group->findChildren<QComboBox *>()) {
        connect(list, &QComboBox::currentIndexChanged, this, use);
    }
    for (auto *option : group->findChildren<QAbstractButton *>()) {
        connect(option, &QAbstractButton::toggled, this, use);
    }
    auto *button = group->findChild<QPushButton *>(u"CMD_UseInsert_"_s + QString::number(index));
    connect(button, &QPushButton::clicked, this,
            guarded(m_parts.context.dialogs, [this, index](bool) { insert(index); }));
}

void UsePage::connectRest()
{
    const ControlArray<QPushButton> browses(this, u"CMD_Browse"_s);
    for (int i = 0; i < browses.count(); ++i) {
        connect(
            browses[i], &QPushButton::clicked, this,
            guarded(m_parts.context.dialogs, [this, i](bool) { browse(useBrowses[size_t(i)]); }));
    }
    connect(m_ui->Command2, &QPushButton::clicked, this,
            guarded(m_parts.context.dialogs, [this](bool) { UpdateProfiles(); }));
    connect(m_ui->File1_0, &QListWidget::currentTextChanged, this, [this](const QString &name) {
        m_profiles.select(name);
        useGroup(int(UseInsert::Profile));
    });
}

UseFields UsePage::fields() const
{
    UseFields fields;
    for (size_t i = 0; i < useTexts.size(); ++i) {
        fields.*useTexts[i] = m_texts[int(i)]->text();
    }
    for (size_t i = 0; i < useTicks.size(); ++i) {
        fields.*useTicks[i] = m_ticks[int(i)]->isChecked();
    }
    fields.directXControl = m_lists[0]->currentText();
    fields.directXButton = m_lists[1]->currentIndex() + 1;
    fields.shiftControl = m_lists[2]->currentText();
    fields.hat = m_lists[3]->currentText();
    fields.windowStyle = windowStyles[size_t(m_lists[4]->currentIndex())].style;
    fields.profile = m_profiles.selected();
    fields.autoProfile = m_ui->OptionProfiles_0->isChecked();
    fields.hotasFolder = m_parts.context.paths.hotasFolder;
    fields.startup = startup();
    return fields;
}

void UsePage::showFields(const UseFields &fields)
{
    for (size_t i = 0; i < useTexts.size(); ++i) {
        showText(*m_texts[int(i)], fields.*useTexts[i]);
    }
    for (size_t i = 0; i < useTicks.size(); ++i) {
        m_ticks[int(i)]->setChecked(fields.*useTicks[i]);
    }
    m_lists[0]->setCurrentText(fields.directXControl);
    m_lists[1]->setCurrentIndex(fields.directXButton - 1);
    m_lists[2]->setCurrentText(fields.shiftControl);
    m_lists[3]->setCurrentText(fields.hat);
    m_lists[4]->setCurrentText(QString::number(int(fields.windowStyle)));
    m_profiles.select(fields.profile);
    showProfiles();
    (fields.autoProfile ? m_ui->OptionProfiles_0 : m_ui->OptionProfiles_1)->setChecked(true);
    const HardwareStartup &startup = fields.startup;
    (startup.emulation() ? m_ui->OptionHWbuttonmode_0 : m_ui->OptionHWbuttonmode_1)
        ->setChecked(true);
    (startup.autoCalibration() ? m_ui->OptionHWCalibMode_0 : m_ui->OptionHWCalibMode_1)
        ->setChecked(true);
    (startup.userAxes() ? m_ui->OptionHWAxismode_1 : m_ui->OptionHWAxismode_0)->setChecked(true);
    followFields();
}

HardwareStartup UsePage::startup() const
{
    HardwareStartup startup;
    startup.setEmulation(m_ui->OptionHWbuttonmode_0->isChecked());
    startup.setAutoCalibration(m_ui->OptionHWCalibMode_0->isChecked());
    startup.setUserAxes(m_ui->OptionHWAxismode_1->isChecked());
    return startup;
}

void UsePage::UpdateProfiles()
{
    m_profiles.UpdateProfiles(profileFiles(profilesFolder(m_parts.context.paths)));
    showProfiles();
    Q_EMIT changed();
}

void UsePage::showProfiles()
{
    const QSignalBlocker blocker(m_ui->File1_0);
    m_ui->File1_0->clear();
    m_ui->File1_0->addItems(m_profiles.names());
    m_ui->File1_0->setCurrentRow(m_profiles.index());
}

void UsePage::followFields()
{
    const UseFields fields = this->fields();
    m_ui->LabelSampleRate->setText(rateSample(fields.rateOfFile).toString());
    for (QWidget *single : { static_cast<QWidget *>(m_lists[0]), static_cast<QWidget *>(m_lists[1]),
                             static_cast<QWidget *>(m_ui->LabelUSEDX_0),
                             static_cast<QWidget *>(m_ui->LabelUSEDX_1) }) {
        single->setEnabled(!fields.allDirectXButtons);
    }
    if (!fields.startup.mayHaveUserAxes()) {
        m_ui->OptionHWAxismode_0->setChecked(true);
    }
    m_ui->OptionHWAxismode_1->setEnabled(fields.startup.mayHaveUserAxes());
    UpdateWindowTypeDescription();
}

void UsePage::UpdateWindowTypeDescription()
{
    const WindowStyleRow &row = windowStyles[size_t(m_lists[4]->currentIndex())];
    m_ui->LabelWindowType->setText(row.description.toString());
}

int UsePage::insertInFront() const
{
    if (m_groups[m_usedLast]->isVisibleTo(this)) {
        return m_usedLast;
    }
    const auto front = std::ranges::find_if(
        m_groups, [this](const QWidget *group) { return group->isVisibleTo(this); });
    return int(front - m_groups.begin());
}

void UsePage::bringToFront(UseInsert insert)
{
    m_usedLast = int(insert);
    for (QWidget *inner = m_groups[m_usedLast]; inner != this; inner = inner->parentWidget()) {
        auto *stack = inner->parentWidget()->parentWidget();
        if (auto *tabs = qobject_cast<QTabWidget *>(stack)) {
            tabs->setCurrentWidget(inner);
        }
    }
}

void UsePage::useGroup(int index)
{
    m_usedLast = index;
    followFields();
    Q_EMIT changed();
}

std::optional<Generated> UsePage::current() const
{
    return statementOf(UseInsert(insertInFront()));
}

Generated UsePage::statementOf(UseInsert insert) const
{
    Generated statement = generateUse(insert, fields());
    if (statement) {
        const QChar after = surroundingsOf(m_parts.documents.joystick()).after;
        statement->pieces.last().text += blankBefore(after);
    }
    return statement;
}

bool UsePage::read(const QString &statement)
{
    const auto reading = readUse(statement, fields());
    if (!reading) {
        return false;
    }
    if (reading->insert == UseInsert::Profile) {
        // It may be newer than the list.
        ProfileList now;
        now.UpdateProfiles(profileFiles(profilesFolder(m_parts.context.paths)));
        if (!now.select(reading->fields.profile)) {
            return false;
        }
        m_profiles = now;
    }
    {
        const QSignalBlocker oneChange(this);
        showFields(reading->fields);
        bringToFront(reading->insert);
    }
    // The page comes to the front after this, which is no reason to name another file.
    m_keepsMacroFile = reading->insert == UseInsert::MacroFile && !isVisible();
    Q_EMIT changed();
    return true;
}

void UsePage::enter()
{
    if (!std::exchange(m_keepsMacroFile, false)) {
        showText(*m_texts[0], m_parts.documents.macro().name());
    }
    if (QWidget *first = firstControlOf(*m_groups[insertInFront()])) {
        first->setFocus(Qt::OtherFocusReason);
    }
}

void UsePage::insert(int index)
{
    m_usedLast = index;
    const auto question = questionBeforeUse(UseInsert(index), fields());
    if (question && !m_parts.context.dialogs.ask(question->title, question->text, question->icon)) {
        return;
    }
    m_parts.inserter.insertComposed(statementOf(UseInsert(index)));
}

void UsePage::browse(const UseBrowse &browse)
{
    FileRequest request{ .title = browse.title.toString(), .filter = browse.filter.toString() };
    if (!browse.wholePath) {
        request.folder = m_parts.context.paths.filesFolder();
    }
    if (const auto path = m_parts.context.dialogs.openFile(request); path && !path->isEmpty()) {
        m_texts[browse.text]->setText(browsedText(browse, *path));
    }
}

bool UsePage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::FocusIn) {
        return ComposerPage::eventFilter(watched, event);
    }
    const auto *control = static_cast<QWidget *>(watched);
    const auto group = std::ranges::find_if(
        m_groups, [control](const QWidget *each) { return each->isAncestorOf(control); });
    if (group != m_groups.end() && *group != m_groups[m_usedLast]) {
        useGroup(int(group - m_groups.begin()));
    }
    const auto text = std::ranges::find(m_texts, watched);
    if (text != m_texts.end()
        && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
        // The box itself places its caret in answer to the event or the click; this comes after.
        const bool toEnd = text - m_texts.begin() == endOfText;
        QMetaObject::invokeMethod(
            *text,
            [box = *text, toEnd] {
                if (box->hasFocus()) {
                    toEnd ? box->end(false) : box->selectAll();
                }
            },
            Qt::QueuedConnection);
    }
    return ComposerPage::eventFilter(watched, event);
}

} // namespace zeph
