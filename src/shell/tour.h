// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/dialogs.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <vector>

class QWidget;

namespace zeph {

class Application;
enum class ModePicture;

/// Dialogs that answer themselves with their defaults and write down what they would have said.
class RecordingDialogs : public Dialogs
{
public:
    const QStringList &record() const { return m_record; }

    BoxButton box(const Box &box) override;
    std::optional<QString> openFile(const FileRequest &request) override;
    std::optional<QString> saveFile(const FileRequest &request) override;
    std::optional<QString> chooseFolder(const QString &title, const QString &start) override;
    std::optional<ColorRef> chooseColour(ColorRef start) override;
    std::optional<CharFormat> chooseFont(const CharFormat &start) override;
    std::optional<qsizetype> chooseFromList(const QString &title,
                                            const QStringList &lines) override;

private:
    QStringList m_record;
};

/// Walks through the program's windows by itself and leaves a picture of each in a folder, for
/// whoever wants to see how they look on a system; then ends the program.
class Tour : public QObject
{
    Q_OBJECT
public:
    /// The folder is made when it is missing. Answers the first run's questions from now on. The
    /// environment variable ZEPH_TOUR_PALETTE with "dark" shows everything on a dark desktop.
    Tour(const QString &folder, const RecordingDialogs &dialogs);

    /// Walks on from the running program's event loop.
    void start(Application &application);

private:
    struct Stop {
        QString name;
        std::function<void()> goThere;
    };

    void addStops(Application &application);
    void addToolStops(Application &application);
    void addFormStops(Application &application);
    void walk();
    /// Every tab of Preferences.
    void lookAtPreferences();
    void popUpRightMenu();
    /// Opens a modal window by its menu entry, grabs it and closes it.
    void lookAtModal(const QString &entry, const QString &name);
    void compileSlowly();
    void showMode(ModePicture picture, QStringView menu);
    void answerWelcome();
    void grab(QWidget &window, const QString &name) const;
    void grabAll(const QString &name) const;
    void writeVerdict() const;

    QString m_folder;
    const RecordingDialogs &m_dialogs;
    Application *m_application = nullptr;
    QTimer m_timer;
    QTimer m_welcomeTimer;
    std::vector<Stop> m_stops;
    size_t m_next = 0;
    /// What panel 1 read at each stop.
    QStringList m_panel;
};

} // namespace zeph
