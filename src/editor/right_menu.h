// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

class QMenu;

namespace zeph {

class MenuActions;
class EditorView;

/// The context menu of the texts, built anew at each click from what can be done at that moment.
class RightMenu : public QObject
{
    Q_OBJECT
public:
    RightMenu(EditorView &view, MenuActions &actions);

    /// Builds the menu mnuRHMouse for the selected document in its present state.
    std::unique_ptr<QMenu> build() const;

private:
    void showStatusTip(const QString &tip) const;

    EditorView &m_view;
    MenuActions &m_actions;
};

} // namespace zeph
