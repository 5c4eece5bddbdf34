// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"
#include "composer/generators/digital_axis.h"
#include "platform/control_array.h"

#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zeph {

class BandEditor;

namespace Ui {
class DigitalAxisPage;
}

/// "Digital axis": statements of the types 1 to 6, which make keys of an axis. Each type has a tab;
/// the modifier and the tick for a statement without an axis hold for all of them.
class DigitalAxisPage : public ComposerPage
{
    Q_OBJECT
public:
    DigitalAxisPage(const ComposerParts &parts, QWidget *parent);
    ~DigitalAxisPage() override;

    std::optional<Generated> current() const override;
    bool read(const QString &statement) override;
    void enter() override;

    /// Labels the key boxes of a tab, 0-based, after its axis.
    void DigitalDirections(int index);
    /// Show the chosen band of the type.
    void Type5DisplayData();
    void Type6DisplayData();

protected:
    /// Enter presses the default button.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectControls();
    void connectBands(BandEditor &editor, int index);
    void showAxis(int index);
    void showTab(int index);
    BandEditor *bandsOf(int type) const;
    /// The fields of a tab.
    DigitalAxisFields fieldsOf(int index) const;
    void showFields(const DigitalAxisFields &fields);
    void insert(int index);

    std::unique_ptr<Ui::DigitalAxisPage> m_ui;
    ControlArray<QComboBox> m_axes;
    ControlArray<QPushButton> m_inserts;
    ControlArray<QCheckBox> m_forceMacros;
    ControlArray<QLineEdit> m_counts;
    ControlArray<QLineEdit> m_keys;
    ControlArray<QLabel> m_keyLabels;
    /// A statement was read before the page came to the front, which keeps its tab then.
    bool m_wasReadUnseen = false;
};

} // namespace zeph
