// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>

#include <vector>

class QPlainTextEdit;

namespace zeph {

/// Which lines of two texts differ: a flag a line, true for one that the other text does not have
/// at that place. What the texts share is found as lines in the same order.
struct DifferentLines {
    std::vector<bool> ours;
    std::vector<bool> theirs;
};
DifferentLines differentLines(QStringView ours, QStringView theirs);

/// The text of the Editor and that of the disk side by side, to be read; differing lines are
/// marked.
class BothTexts : public QDialog
{
    Q_OBJECT
public:
    BothTexts(const QString &name, const QString &ours, const QString &theirs, QWidget *parent);

private:
    QPlainTextEdit *makeText(const QString &objectName, const QString &text,
                             const std::vector<bool> &marked);
};

} // namespace zeph
