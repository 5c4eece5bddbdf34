// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "text/text_styles.h"

#include <QDialog>

#include <memory>

namespace zeph {

class Dialogs;

namespace Ui {
class StyleEditor;
}

/// Shows and changes the nine styles, with a preview on the texts' background. The caller takes
/// styles() when the dialog is accepted.
class StyleEditor : public QDialog
{
    Q_OBJECT
public:
    StyleEditor(const TextStyles &styles, ColorRef background, Dialogs &dialogs,
                QWidget *parent = nullptr);
    ~StyleEditor() override;

    /// The styles as the fields say now; a style without a name gets its default one.
    TextStyles styles() const;

private:
    void connectFields();
    void choose(int index);
    void read();
    void showStyle();
    void chooseColour();
    void showPreview();
    TextStyle &current() { return m_styles[size_t(m_index)]; }

    TextStyles m_styles;
    int m_index = 0;
    ColorRef m_background;
    Dialogs &m_dialogs;
    bool m_isShowing = false;
    std::unique_ptr<Ui::StyleEditor> m_ui;
};

} // namespace zeph
