// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace zeph {

class Documents;
class EditorView;
class Highlighting;
struct DocumentSettings;

/// Colours lines as they are typed, while ColourWithTyping is 1: before a blank or a line end goes
/// in, behind Backspace and Right, and when the mouse has selected something. A protected macro
/// text, into which nothing is typed, stays as it is.
class TypingColour : public QObject
{
    Q_OBJECT
public:
    TypingColour(EditorView &view, Highlighting &highlighting, const DocumentSettings &settings);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool endsLine(const QEvent &event) const;

    Documents &m_documents;
    Highlighting &m_highlighting;
    const DocumentSettings &m_settings;
};

} // namespace zeph
