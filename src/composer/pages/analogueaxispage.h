// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/generators/analogue_axis.h"
#include "platform/control_array.h"

#include <memory>

class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace zeph {

namespace Ui {
class AnalogueAxisPage;
}

/// "Analogue axis": the statements that change how an axis reports. A tab has one Insert button or
/// two; of two, the one whose fields were changed last counts as the tab's.
class AnalogueAxisPage : public ComposerPage
{
    Q_OBJECT
public:
    AnalogueAxisPage(const ComposerParts &parts, QWidget *parent);
    ~AnalogueAxisPage() override;

    std::optional<Generated> current() const override;
    bool read(const QString &statement) override;
    void enter() override;

    /// Shows the THR_RANGE statement as it is now.
    void UpdateTHRrange();
    /// Lets the columns of DirectX axes 9 and 10 be used, or not, as the setting says.
    void EnableExtraDX();
    /// Offers what the first axis can be swapped with.
    void DisableDissimilarSwapaxes();
    /// Starts the program that measures the throttle.
    void THRRangeWizard();
    /// Takes the values that it has measured.
    void getTHRRangeWizardvalues();

private:
    /// CMD_AnaAxes_0 to CMD_AnaAxes_10. All but the last two insert.
    enum Button : quint8 {
        CurveButton,
        TrimButton,
        DisableButton,
        LockButton,
        SwapButton,
        UseReverseButton,
        ReverseButton,
        AxesConfigButton,
        RangeButton,
        WizardButton,
        RetrieveButton
    };

    void fillLists();
    void connectControls();
    void connectOptions();
    void showCurveForm();
    void showTrimType();
    void flipTrimSign();
    void showLock();
    void applyCommonConfiguration();
    void setExtraAxes(bool on);

    QString axis(int list) const;
    QString value(int box) const;
    CurveFields curve() const;
    TrimFields trim() const;
    LockFields lock() const;
    ThrottleRangeFields throttleRange() const;
    Generated generate(Button button) const;
    void insert(Button button);
    void fillEmptyValues(Button button);

    void showFields(const CurveFields &fields);
    void showFields(const TrimFields &fields);
    void showFields(const LockFields &fields);
    void showFields(const SwapFields &fields);
    void showFields(const ReverseFields &fields);
    void showFields(const ThrottleRangeFields &fields);
    bool showDisable(const QString &statement);
    bool showAxesConfig(const QString &statement);
    template <class Fields>
    bool showRead(std::optional<Fields> (*readFields)(QStringView), const QString &statement);
    void turnTo(Button button);

    std::unique_ptr<Ui::AnalogueAxisPage> m_ui;
    ControlArray<QComboBox> m_axes;
    ControlArray<QLineEdit> m_values;
    ControlArray<QPushButton> m_buttons;
    ControlArray<QRadioButton> m_curveForms;
    ControlArray<QRadioButton> m_trimTypes;
    ControlArray<QRadioButton> m_commonConfigurations;
    /// The button whose fields were changed last, by tab.
    std::array<Button, 7> m_lastChanged{ CurveButton, TrimButton,       DisableButton,
                                         SwapButton,  UseReverseButton, AxesConfigButton,
                                         RangeButton };
};

} // namespace zeph
