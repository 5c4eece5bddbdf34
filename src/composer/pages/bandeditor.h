// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/bands.h"

#include <QWidget>

#include <memory>

namespace zeph {

class KeyBox;
struct DirectionLabels;

namespace Ui {
class BandEditor;
}

/// The fields for the bands of a digital axis of type 5 or 6: how many, where their borders are,
/// their keys. Until a number of bands is applied, and after a reset, nothing but that number can
/// be given. The controls have names of their own for each type.
class BandEditor : public QWidget
{
    Q_OBJECT
public:
    explicit BandEditor(QWidget *parent);
    ~BandEditor() override;

    /// Type 5 or 6. Called once, before anything else.
    void setType(int type);

    const Bands &bands() const { return m_bands; }
    void setBands(const Bands &bands);
    /// The labels of the keys up and down, for type 6.
    void setDirections(const DirectionLabels &labels);

    /// Shows the chosen band; of type 5 its key, which gets the focus, too.
    void DisplayData();

Q_SIGNALS:
    void changed();
    /// The number of bands is no good.
    void refused(const zeph::Refusal &refusal);

protected:
    /// A border that is clicked is the one that moves.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void nameControls();
    void addKeys();
    KeyBox *addKey(int index, const QString &label);
    void connectControls();
    void apply();
    void reset();
    void select(int band, Bands::Side side);
    void moveTo(double percent);
    void typeBorder(Bands::Side side);
    void setKey(int index, const QString &key);
    void showState();
    void showBand();
    void showBorders();

    std::unique_ptr<Ui::BandEditor> m_ui;
    Bands m_bands{ 5 };
    int m_band = 0;
    Bands::Side m_side = Bands::Side::Low;
    /// One, or up, down and centre.
    QList<KeyBox *> m_keys;
    QList<QLabel *> m_keyLabels;
};

} // namespace zeph
