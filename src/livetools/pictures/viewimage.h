// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/picture_gestures.h"
#include "platform/context.h"

#include <QDateTime>
#include <QMainWindow>

#include <memory>

class QAction;
class QImage;
class QLabel;

namespace zeph {

namespace Ui {
class ViewImage;
}

class MenuActions;
class PictureFrame;
class Printers;

/// The main window's menu entries that the Image Viewer runs too, and whether they can be used.
/// All must outlive it.
struct PictureEntries {
    QAction *mouseWizard;
    QAction *mouseManual;
};

/// Shows one picture, that of ImageFilePath, and measures on it what the mouse wizard asks for.
class ViewImage : public QMainWindow
{
    Q_OBJECT
public:
    ViewImage(const Context &context, Printers &printers, const PictureEntries &entries,
              QWidget *parent = nullptr);
    ~ViewImage() override;

    /// Shows the picture of ImageFilePath; when it is shown already, as its file is now, nothing
    /// is read.
    void showImageFile();
    /// Reads the picture of ImageFilePath. False, which is told, when that cannot be shown; the
    /// picture that was there stays.
    bool mnuImageLoad_Click();
    void mnuImageOpen_Click();
    void mnuImageSave_Click();
    void mnuImagePrint_Click();
    void mnuImageSize_Click();
    void mnuImageEdit_Click();
    void mnuMouseWizard_Click();
    void mnuMouseStatements_Click(int index);
    void RepositionControls();
    void GetImageViewerOptions();
    void SaveQuickViewOptions();

    /// In the picture's own pixels; empty without a picture.
    QSize pictureSize() const;

    /// What a drag on the picture means from now on. The measures stay.
    void setGesture(Gesture gesture);
    Gesture gesture() const;
    const Measures &measures() const;
    void setMeasures(const Measures &measures);
    void clearMeasures() { setMeasures({}); }
    float CalculateTheta1() const;
    float CalculateTheta2() const;

Q_SIGNALS:
    /// The measures are others now; during a drag too.
    void measuresChanged();
    /// The left button, or Shift, was let go.
    void gestureFinished();
    /// A picture was read, which may be the same one again.
    void pictureLoaded();
    /// The manual mouse programming is wanted, at that tab (0 the introduction).
    void mouseManualWanted(int tab);
    /// The user wants the help page of that number.
    void helpWanted(int topic);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void connectEntries();
    void makeBars();
    void followEntries();
    void showPicture(const QString &path, const QImage &picture);
    void showZoom();
    void showPlace(const std::optional<QPoint> &pixel);
    bool mayPrintOnPages(const QSize &page) const;
    QString GetLastImagesDirectory() const;
    void SaveLastImagesDirectory(const QString &folder);
    void say(const QString &text, bool now = false);
    PictureFrame &frame() const;
    const QImage &picture() const;

    Context m_context;
    Printers &m_printers;
    PictureEntries m_entries;
    std::unique_ptr<Ui::ViewImage> m_ui;
    std::unique_ptr<MenuActions> m_actions;
    QLabel *m_place;
    QLabel *m_zoom;
    QString m_path; ///< of the picture that is shown
    QDateTime m_writtenAt; ///< when its file was written last
};

} // namespace zeph
