// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileDialog>

class QLabel;

namespace zeph {

/// The dialog that opens a picture: beside the files it shows the picture that is selected.
class SelectPictureForm : public QFileDialog
{
    Q_OBJECT
public:
    SelectPictureForm(QWidget *parent, const QString &title);

private:
    void addPreview();
    void showPreview(const QString &path);

    QLabel *m_preview;
    QLabel *m_words;
};

} // namespace zeph
