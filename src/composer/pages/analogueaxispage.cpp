// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/analogueaxispage.h"

#include "composer/composer_settings.h"
#include "composer/pages/page_fields.h"
#include "composer/statement_inserter.h"
#include "platform/core/profile_file.h"
#include "platform/process_launcher.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "ui_analogueaxispage.h"

namespace zeph {

namespace {

/// The tab of each button.
constexpr int tabOf[] = { 0, 1, 2, 2, 3, 4, 4, 5, 6 };

QString text(const char16_t *caption)
{
    return QStringView(caption).toString();
}

int checkedOf(const ControlArray<QRadioButton> &options)
{
    const auto found = std::ranges::find_if(options, &QRadioButton::isChecked);
    return int(found - options.begin());
}

void fillEmpty(QLineEdit &box)
{
    box.setText(filledValue(box.text()));
}

} // namespace

AnalogueAxisPage::AnalogueAxisPage(const ComposerParts &parts, QWidget *parent)
    : ComposerPage(parts, parent), m_ui(std::make_unique<Ui::AnalogueAxisPage>())
{
    m_ui->setupUi(this);
    m_axes = { this, u"ComboAnalogueAxes"_s };
    m_values = { this, u"TextAnalogueAxes"_s };
    m_buttons = { this, u"CMD_AnaAxes"_s };
    m_curveForms = { this, u"OptionAnaCurve"_s };
    m_trimTypes = { this, u"OptionTrimType"_s };
    m_commonConfigurations = { this, u"OptionAnaHotas"_s };
    for (QLineEdit *box : m_values)
        fitToNumber(*box);
    fillLists();
    connectControls();
    m_ui->SSTab2->setCurrentIndex(0);
    showCurveForm();
    showTrimType();
    showLock();
    UpdateTHRrange();
    EnableExtraDX();
}

AnalogueAxisPage::~AnalogueAxisPage() = default;

void AnalogueAxisPage::fillLists()
{
    for (int list = 0; list < m_axes.count(); ++list) {
        if (list == 2)
            fillList(*m_axes[list], disableableAxes);
        else
            fillList(*m_axes[list], analogueAxes);
    }
    DisableDissimilarSwapaxes();
    fillList(*m_ui->ComboSlash_0, curveSlashes);
    fillList(*m_ui->ComboSlash_1, curveEvents);
    for (int type = 0; type < m_trimTypes.count(); ++type)
        m_trimTypes[type]->setText(text(trimOptions[size_t(type)].caption));
    for (int index = 0; index < m_commonConfigurations.count(); ++index)
        m_commonConfigurations[index]->setText(text(commonConfigurations[size_t(index)].caption));
}

void AnalogueAxisPage::connectControls()
{
    const auto remember = [this](const QWidget &group, Button button) {
        whenEdited(group, this, [this, button] { m_lastChanged[size_t(tabOf[button])] = button; });
    };
    remember(*m_ui->FrameDisable, DisableButton);
    remember(*m_ui->FrameLock, LockButton);
    remember(*m_ui->FrameUseReverse, UseReverseButton);
    remember(*m_ui->FrameReverse, ReverseButton);
    connectOptions();
    m_buttons.connect(this, &QPushButton::clicked, [this](int button) {
        guarded(m_parts.context.dialogs, [this, button] {
            if (button == WizardButton)
                THRRangeWizard();
            else if (button == RetrieveButton)
                getTHRRangeWizardvalues();
            else
                insert(Button(button));
        })();
    });
    connect(m_ui->SSTab2, &QTabWidget::currentChanged, this, &ComposerPage::changed);
    connect(m_ui->axesGrid, &AxesGrid::changed, this, &ComposerPage::changed);
    whenEdited(*this, this, [this] { Q_EMIT changed(); });
}

void AnalogueAxisPage::connectOptions()
{
    m_curveForms.connect(this, &QRadioButton::clicked, [this](int) { showCurveForm(); });
    m_trimTypes.connect(this, &QRadioButton::clicked, [this](int) { showTrimType(); });
    connect(m_ui->LBL_TrimSign_0, &QPushButton::clicked, this, &AnalogueAxisPage::flipTrimSign);
    for (const auto *option : { m_ui->OptionAnaLOCK_0, m_ui->OptionAnaLOCK_1 })
        connect(option, &QRadioButton::toggled, this, &AnalogueAxisPage::showLock);
    connect(m_ui->Chk_LASTVALUE, &QCheckBox::toggled, this, &AnalogueAxisPage::showLock);
    connect(m_axes[4], &QComboBox::currentIndexChanged, this,
            &AnalogueAxisPage::DisableDissimilarSwapaxes);
    connect(m_ui->Command3, &QPushButton::clicked, this,
            &AnalogueAxisPage::applyCommonConfiguration);
    connect(m_ui->CheckDX9to10, &QCheckBox::clicked, this, &AnalogueAxisPage::setExtraAxes);
    for (QLineEdit *box : { m_values[3], m_values[4] })
        connect(box, &QLineEdit::textChanged, this, &AnalogueAxisPage::UpdateTHRrange);
    connect(m_ui->CheckTHRrange, &QCheckBox::toggled, this, &AnalogueAxisPage::UpdateTHRrange);
}

// --- What depends on other fields

void AnalogueAxisPage::showCurveForm()
{
    const auto form = CurveFields::Form(checkedOf(m_curveForms));
    const bool isCurve = form == CurveFields::Form::Curve;
    const bool isButton = form == CurveFields::Form::Button;
    m_ui->LabelCurveExample->setText(curveExample(form));
    m_ui->FrameAnaCurveOptions->setEnabled(isCurve || isButton);
    m_ui->ComboSlash_0->setEnabled(isCurve);
    m_ui->CheckBeginWithCurve->setEnabled(isCurve);
    m_ui->ComboSlash_1->setEnabled(isButton);
}

void AnalogueAxisPage::showTrimType()
{
    using enum TrimValueBox::Sign;
    const auto type = TrimFields::Type(checkedOf(m_trimTypes));
    m_ui->LabelTrimExample->setText(text(trimOptions[size_t(type)].example));
    QLineEdit &box = *m_values[1];
    const TrimValueBox shown = trimValueBox(type, box.text());
    box.setText(shown.text);
    box.setEnabled(shown.isEnabled);
    QPushButton *sign = m_ui->LBL_TrimSign_0;
    sign->setVisible(shown.sign != None);
    m_ui->layoutTrimValue->removeWidget(sign);
    m_ui->layoutTrimValue->insertWidget(shown.sign == Before ? 0 : 1, sign);
}

void AnalogueAxisPage::flipTrimSign()
{
    const bool isNegative = m_ui->LBL_TrimSign_0->text() == u"-";
    m_ui->LBL_TrimSign_0->setText(isNegative ? u"+"_s : u"-"_s);
    Q_EMIT changed();
}

void AnalogueAxisPage::showLock()
{
    const LockBoxes boxes = lockBoxes(lock());
    m_ui->Chk_LASTVALUE->setEnabled(boxes.lastValueEnabled);
    m_values[2]->setEnabled(boxes.valueEnabled);
    m_values[2]->setText(boxes.value);
}

void AnalogueAxisPage::DisableDissimilarSwapaxes()
{
    fillList(*m_axes[5], swapPartners(axis(4)));
}

void AnalogueAxisPage::UpdateTHRrange()
{
    m_ui->LabelTHRrange->setText(throttleRangeText(throttleRange()));
}

// --- The grid

void AnalogueAxisPage::applyCommonConfiguration()
{
    AxesConfig config = m_ui->axesGrid->config();
    config.apply(commonConfigurations[size_t(checkedOf(m_commonConfigurations))]);
    m_ui->axesGrid->setConfig(config);
}

void AnalogueAxisPage::EnableExtraDX()
{
    const int state = m_parts.context.settings.of<ComposerSettings>().ShowDX9to10;
    m_ui->CheckDX9to10->setVisible(state != 0);
    m_ui->CheckDX9to10->setChecked(state == 2);
    AxesConfig config = m_ui->axesGrid->config();
    config.setExtraAxes(state == 2);
    m_ui->axesGrid->setConfig(config);
}

void AnalogueAxisPage::setExtraAxes(bool on)
{
    const Context &context = m_parts.context;
    context.settings.of<ComposerSettings>().ShowDX9to10 = on ? 2 : 1;
    if (const auto saved = saveSettings(context.settings, settingsFilesOf(context.paths),
                                        { &ComposerSettings::ShowDX9to10 });
        !saved)
        tellNotKept(context.status, saved.error());
    EnableExtraDX();
}

// --- The throttle's wizard

void AnalogueAxisPage::THRRangeWizard()
{
    const Context &context = m_parts.context;
    const QString program = existingPath(context.paths.hotasFolder + u"ThrottleRange.exe"_s);
    if (program.isEmpty()) {
        m_parts.inserter.refuse(noThrottleRangeWizard());
        return;
    }
    context.status.setText(u" Over to the TM applications for this ..."_s);
    const auto started =
        context.launcher.start({ .program = program, .folder = context.paths.hotasFolder });
    if (!started)
        m_parts.inserter.refuse({ u"Unable to run the Thrustmaster software"_s, started.error() });
}

void AnalogueAxisPage::getTHRRangeWizardvalues()
{
    const QString path = existingPath(m_parts.context.paths.hotasFolder + u"ThrottleRange.ini"_s);
    if (path.isEmpty()) {
        m_parts.inserter.refuse(noThrottleRangeValues());
        return;
    }
    const ProfileFile values(path);
    m_values[3]->setText(QString::number(values.integer(u"Throttle", u"MILPercent", 0)));
    m_values[4]->setText(QString::number(values.integer(u"Throttle", u"AFBPercent", 90)));
}

// --- From the fields to a statement

QString AnalogueAxisPage::axis(int list) const
{
    return m_axes[list]->currentText();
}

QString AnalogueAxisPage::value(int box) const
{
    return m_values[box]->text();
}

CurveFields AnalogueAxisPage::curve() const
{
    return { CurveFields::Form(checkedOf(m_curveForms)),
             axis(0),
             value(0),
             m_ui->ComboSlash_0->currentIndex(),
             m_ui->CheckBeginWithCurve->isChecked(),
             m_ui->ComboSlash_1->currentIndex() };
}

TrimFields AnalogueAxisPage::trim() const
{
    return { TrimFields::Type(checkedOf(m_trimTypes)), axis(1), value(1),
             m_ui->LBL_TrimSign_0->text() == u"-" };
}

LockFields AnalogueAxisPage::lock() const
{
    return { m_ui->OptionAnaLOCK_1->isChecked(), axis(3), m_ui->Chk_LASTVALUE->isChecked(),
             value(2) };
}

ThrottleRangeFields AnalogueAxisPage::throttleRange() const
{
    return { m_ui->CheckTHRrange->isChecked(), value(3), value(4) };
}

Generated AnalogueAxisPage::generate(Button button) const
{
    switch (button) {
    case CurveButton:
        return generateCurve(curve());
    case TrimButton:
        return generateTrim(trim());
    case DisableButton:
        return generateDisable(axis(2));
    case LockButton:
        return generateLock(lock());
    case SwapButton:
        return generateSwap({ m_ui->CheckAnaSWAP->isChecked(), axis(4), axis(5) });
    case UseReverseButton:
        return generateReverse({ ReverseFields::Form::Configuration, axis(6) });
    case ReverseButton:
        return generateReverse({ m_ui->OptionAnaREVERSE_1->isChecked()
                                     ? ReverseFields::Form::Forward
                                     : ReverseFields::Form::Reverse,
                                 axis(7) });
    case AxesConfigButton:
        return generateAxesConfig(m_ui->axesGrid->config());
    case RangeButton:
    case WizardButton:
    case RetrieveButton:
        break;
    }
    return generateThrottleRange(throttleRange());
}

std::optional<Generated> AnalogueAxisPage::current() const
{
    return generate(m_lastChanged[size_t(m_ui->SSTab2->currentIndex())]);
}

void AnalogueAxisPage::insert(Button button)
{
    fillEmptyValues(button);
    m_lastChanged[size_t(tabOf[button])] = button;
    m_parts.inserter.insertComposed(generate(button));
}

void AnalogueAxisPage::fillEmptyValues(Button button)
{
    if (button == CurveButton)
        fillEmpty(*m_values[0]);
    if (button == TrimButton)
        fillEmpty(*m_values[1]);
    if (button == LockButton && m_values[2]->isEnabled())
        fillEmpty(*m_values[2]);
    if (button == RangeButton) {
        fillEmpty(*m_values[3]);
        fillEmpty(*m_values[4]);
    }
}

void AnalogueAxisPage::turnTo(Button button)
{
    m_lastChanged[size_t(tabOf[button])] = button;
    m_ui->SSTab2->setCurrentIndex(tabOf[button]);
}

void AnalogueAxisPage::enter()
{
    m_ui->SSTab2->setFocus();
}

} // namespace zeph
