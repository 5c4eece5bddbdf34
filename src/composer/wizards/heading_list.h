// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/composer_page.h"

#include <QListWidget>

namespace zeph {

/// The list List1 of headings that most macro files need. A double click or Enter writes one into
/// the macro file.
class HeadingList : public QListWidget
{
    Q_OBJECT
public:
    explicit HeadingList(const ComposerParts &parts, QWidget *parent = nullptr);

    /// Gives the list the focus, with an entry chosen.
    void selectList();

private:
    void AddHeadingsToList();
    void insertHeading();

    ComposerParts m_parts;
};

} // namespace zeph
