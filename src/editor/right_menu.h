// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

class QMenu;

namespace zeph {

class MenuActions;
class EditorView;

/// The pop-up menu of the right mouse button, built at each press from what can be done then.
class RightMenu : public QObject
{
    Q_OBJECT
public:
    RightMenu(EditorView &view, MenuActions &actions);

    /// The menu mnuRHMouse for the selected document as it stands.
    std::unique_ptr<QMenu> build() const;

private:
    void showStatusTip(const QString &tip) const;

    EditorView &m_view;
    MenuActions &m_actions;
};

} // namespace zeph
