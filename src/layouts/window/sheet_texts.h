// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/draw/first_sheet.h"
#include "layouts/draw/shown_keys.h"
#include "layouts/window/sheet_desk.h"

#include <QDateTime>
#include <QObject>

class QTimer;

namespace zeph {

class Documents;

/// Fills a sheet's boxes from the joystick file, colours them, and knows when the file says
/// something else than the sheet.
class SheetTexts : public QObject
{
    Q_OBJECT
public:
    /// The window owns this; documents and macros must outlive it.
    SheetTexts(const SheetDesk &desk, Documents &documents, const MacroTable &macros);

    /// What fills a box.
    enum class Boxes { All, WithoutOwn };

    /// The texts of an analysis on that sheet; no value while the joystick file is empty. The
    /// pilot's own boxes get their captions, or stay.
    std::optional<Sheet> analysed(Sheet sheet, Boxes boxes = Boxes::All);
    /// Fills all boxes and colours them, as one step.
    void AnalyseJoystickFile(Boxes boxes = Boxes::All);
    void AnalyseSelectedTextbox();

    /// Normal highlighting of all boxes that are shown, and on top of it that of the positions of
    /// the dogfight switch.
    Sheet coloured(Sheet sheet, bool withUMD) const;
    void applyToAll(bool withUMD);
    void applyToSelected(bool withUMD);

    void fitAll();
    void fitSelected();

    /// The sheet with the macros' keys where the user wants them.
    Sheet withKeys(Sheet sheet) const;

    /// Says of which moment the sheet's texts are: a layout with texts from the disk.
    void followLayout(const QDateTime &written);

Q_SIGNALS:
    /// Whether the joystick file has changed since the sheet was filled from it.
    void staleChanged(bool isStale);

private:
    RichText colouredBox(const RichText &text, bool withUMD) const;
    void writeTemporaries(const struct AnalysedFile &file, const QString &text) const;
    void judge();

    SheetDesk m_desk;
    Documents &m_documents;
    const MacroTable &m_macros;
    QTimer *m_timer;
    std::optional<QString> m_analysedFrom; ///< the joystick text that the boxes show
    std::optional<QDateTime> m_layoutWritten;
    bool m_isStale = false;
};

} // namespace zeph
