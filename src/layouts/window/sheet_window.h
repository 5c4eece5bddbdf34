// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/draw/first_sheet.h"
#include "layouts/files/layout_files.h"
#include "layouts/window/sheet_output.h"
#include "layouts/window/sheet_texts.h"
#include "platform/tool_windows.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class QToolBar;

namespace zeph {

class MenuArray;
class SheetBoxes;
class SheetFormatting;
class SheetTransfer;

/// What a sheet's window needs beside the Context. All of it must outlive the window.
struct SheetSources {
    Documents &documents;
    const MacroTable &macros;
    SheetOutput::Ways ways;
};

/// The window of a sheet: a frame around the sheet itself and the parts that work on it. The three
/// kinds differ by their rows of tables.
class SheetWindow : public QMainWindow, public AsksBeforeClosing
{
    Q_OBJECT
public:
    SheetWindow(const Context &context, SheetKind kind, const SheetSources &sources,
                QWidget *parent = nullptr);
    ~SheetWindow() override;

    SheetModel &model() { return m_model; }
    SheetView &view() { return *m_view; }
    MenuActions &actions() { return *m_actions; }
    SheetTransfer &transfer() { return *m_transfer; }

    /// Asks about an unsaved layout; the answer holds until the sheet is changed.
    bool mayClose() override;
    /// The macros have other keys now.
    void macrosChanged() { refresh(); }

    void GetLayoutOptions();
    void SaveLayoutOptions();
    /// Gives the sheet another size; its boxes follow where the settings say so.
    void AdjustLayoutSize(const QSize &size);
    void ChangeLayoutProps();

Q_SIGNALS:
    /// The user wants the help page of that number.
    void helpWanted(int topic);
    /// Texts lie ready for the custom sheet: all of this sheet's, or one.
    void transferWanted(zeph::SheetKind from, bool all);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void makeBars();
    void makeStaleBar();
    void makePopUp();
    void connectFile();
    void connectSheet();
    void connectParts();
    void openSheet();
    Sheet freshSheet();
    Sheet freshCustomSheet() const;
    void showOpened(const std::optional<OpenedLayout> &opened);
    void loadPictures();
    QStringList picturePaths() const;
    void chooseOwnPicture();
    void arrange();
    void setAutomatic();
    void refresh();
    void updateConditions();
    void showTitle();
    void showRecent();

    Context m_context;
    SheetKind m_kind;
    SheetSources m_sources;
    std::unique_ptr<MenuActions> m_actions;
    SheetModel m_model;
    SheetView *m_view;
    QWidget *m_staleBar = nullptr;
    QToolBar *m_toolBar = nullptr;
    QLabel *m_overflow = nullptr;
    QLabel *m_size = nullptr;
    SheetTexts *m_texts = nullptr;
    SheetBoxes *m_boxes = nullptr;
    SheetFormatting *m_formatting = nullptr;
    SheetOutput *m_output = nullptr;
    SheetTransfer *m_transfer = nullptr;
    LayoutFiles *m_files = nullptr;
    MenuArray *m_recent = nullptr;
    ControlsImage m_image;
    QStringList m_shownPictures; ///< whose pictures the sheet is drawn with
    Sheet m_asOpened; ///< nothing is lost while the sheet is still that
    bool m_isLeft = false; ///< the question before closing has been answered
};

/// The joystick sheet.
class GraphicsPrint : public SheetWindow
{
    Q_OBJECT
public:
    GraphicsPrint(const Context &context, const SheetSources &sources, QWidget *parent = nullptr)
        : SheetWindow(context, SheetKind::Joystick, sources, parent)
    {
    }
};

/// The throttle sheet.
class TQSLayout : public SheetWindow
{
    Q_OBJECT
public:
    TQSLayout(const Context &context, const SheetSources &sources, QWidget *parent = nullptr)
        : SheetWindow(context, SheetKind::Throttle, sources, parent)
    {
    }
};

/// The free sheet for a whole cockpit.
class CustomLayout : public SheetWindow
{
    Q_OBJECT
public:
    CustomLayout(const Context &context, const SheetSources &sources, QWidget *parent = nullptr)
        : SheetWindow(context, SheetKind::Custom, sources, parent)
    {
    }
};

} // namespace zeph
