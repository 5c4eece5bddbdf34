// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// How the page takes a statement of the file into its fields.

#include "composer/composer_settings.h"
#include "composer/pages/analogueaxispage.h"
#include "settings/settings.h"
#include "ui_analogueaxispage.h"

#include <QSignalBlocker>

namespace zeph {

void AnalogueAxisPage::showFields(const CurveFields &fields)
{
    m_curveForms[int(fields.form)]->setChecked(true);
    m_axes[0]->setCurrentText(fields.axis);
    m_values[0]->setText(fields.value);
    m_ui->ComboSlash_0->setCurrentIndex(fields.slash);
    m_ui->CheckBeginWithCurve->setChecked(fields.beginsWithCurve);
    m_ui->ComboSlash_1->setCurrentIndex(fields.event);
    showCurveForm();
    turnTo(CurveButton);
}

void AnalogueAxisPage::showFields(const TrimFields &fields)
{
    m_trimTypes[int(fields.type)]->setChecked(true);
    m_axes[1]->setCurrentText(fields.axis);
    m_values[1]->setText(fields.value);
    m_ui->LBL_TrimSign_0->setText(fields.isNegative ? u"-"_s : u"+"_s);
    showTrimType();
    turnTo(TrimButton);
}

void AnalogueAxisPage::showFields(const LockFields &fields)
{
    (fields.unlocks ? m_ui->OptionAnaLOCK_1 : m_ui->OptionAnaLOCK_0)->setChecked(true);
    m_axes[3]->setCurrentText(fields.axis);
    m_ui->Chk_LASTVALUE->setChecked(fields.toLastValue);
    m_values[2]->setText(fields.value);
    showLock();
    turnTo(LockButton);
}

void AnalogueAxisPage::showFields(const SwapFields &fields)
{
    m_ui->CheckAnaSWAP->setChecked(fields.isConfiguration);
    m_axes[4]->setCurrentText(fields.first);
    m_axes[5]->setCurrentText(fields.second);
    turnTo(SwapButton);
}

void AnalogueAxisPage::showFields(const ReverseFields &fields)
{
    if (fields.form == ReverseFields::Form::Configuration) {
        m_axes[6]->setCurrentText(fields.axis);
        turnTo(UseReverseButton);
        return;
    }
    const bool isForward = fields.form == ReverseFields::Form::Forward;
    (isForward ? m_ui->OptionAnaREVERSE_1 : m_ui->OptionAnaREVERSE_0)->setChecked(true);
    m_axes[7]->setCurrentText(fields.axis);
    turnTo(ReverseButton);
}

void AnalogueAxisPage::showFields(const ThrottleRangeFields &fields)
{
    m_ui->CheckTHRrange->setChecked(fields.isConfiguration);
    m_values[3]->setText(fields.from);
    m_values[4]->setText(fields.to);
    turnTo(RangeButton);
}

bool AnalogueAxisPage::showDisable(const QString &statement)
{
    const auto read = readDisable(statement);
    if (!read)
        return false;
    m_axes[2]->setCurrentText(*read);
    turnTo(DisableButton);
    return true;
}

// A grid with DirectX axes 9 and 10 is read only where they are offered, and takes them into use.
bool AnalogueAxisPage::showAxesConfig(const QString &statement)
{
    auto read = readAxesConfig(statement);
    const int state = m_parts.context.settings.of<ComposerSettings>().ShowDX9to10;
    if (!read || (read->extraAxes() && state == 0))
        return false;
    if (read->extraAxes() && state == 1)
        setExtraAxes(true);
    read->setExtraAxes(read->extraAxes() || state == 2);
    m_ui->axesGrid->setConfig(*read);
    turnTo(AxesConfigButton);
    return true;
}

template <class Fields>
bool AnalogueAxisPage::showRead(std::optional<Fields> (*readFields)(QStringView),
                                const QString &statement)
{
    const auto fields = readFields(statement);
    if (fields)
        showFields(*fields);
    return fields.has_value();
}

bool AnalogueAxisPage::read(const QString &statement)
{
    bool isRead = false;
    {
        // One change, not one a field.
        const QSignalBlocker quiet(this);
        isRead = showRead(readCurve, statement) || showRead(readTrim, statement)
            || showDisable(statement) || showRead(readLock, statement)
            || showRead(readSwap, statement) || showRead(readReverse, statement)
            || showAxesConfig(statement) || showRead(readThrottleRange, statement);
    }
    if (isRead)
        Q_EMIT changed();
    return isRead;
}

} // namespace zeph
