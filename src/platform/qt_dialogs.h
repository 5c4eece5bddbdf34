// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/dialogs.h"

#include <QPointer>
#include <QWidget>

class QFileDialog;

namespace zeph {

/// The dialogs that the user sees. They open over the active window, else over the parent.
class QtDialogs : public Dialogs
{
public:
    explicit QtDialogs(QWidget *parent = nullptr);

    void setParent(QWidget *parent) { m_parent = parent; }

    BoxButton box(const Box &box) override;
    std::optional<QString> openFile(const FileRequest &request) override;
    std::optional<QString> saveFile(const FileRequest &request) override;
    std::optional<QString> chooseFolder(const QString &title, const QString &start) override;
    std::optional<ColorRef> chooseColour(ColorRef start) override;
    std::optional<CharFormat> chooseFont(const CharFormat &start) override;
    std::optional<qsizetype> chooseFromList(const QString &title,
                                            const QStringList &lines) override;

private:
    QWidget *parentNow() const;
    std::optional<QString> chosenFile(QFileDialog &dialog, const FileRequest &request) const;

    QPointer<QWidget> m_parent;
};

/// "Caption|*.a;*.b|Caption|*.c" as the toolkit's name filters. A caption that does
/// not end with its patterns in brackets gets them; an empty filter shows all files.
QStringList nameFilters(const QString &filter);

} // namespace zeph
