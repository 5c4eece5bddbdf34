// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/files/layouts_settings.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QToolButton;

namespace zeph {

class Dialogs;

/// A small window of fonts and colours for the text that is selected in a box.
class CustomFormatter : public QDialog
{
    Q_OBJECT
public:
    /// The colours are kept in that file.
    CustomFormatter(const ProfileFile &layoutsIni, Dialogs &dialogs, QWidget *parent);

Q_SIGNALS:
    void colourChosen(zeph::ColorRef colour);
    void familyChosen(const QString &family);
    void sizeChosen(double points);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeFonts();
    QWidget *makeColours();
    QToolButton *makeColour(const QString &name, const QString &words);
    void apply(ColorRef colour);
    /// Lets the user give a colour of the palette (0-based) another one.
    void customise(size_t index);
    void showColours();
    void keep();
    void tellSize();

    ProfileFile m_layoutsIni;
    Dialogs &m_dialogs;
    FormatterColours m_colours;
    std::vector<QToolButton *> m_palette;
    std::vector<QToolButton *> m_recent;
    QComboBox *m_sizes = nullptr;
};

} // namespace zeph
