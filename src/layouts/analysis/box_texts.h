// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a joystick file gives to the boxes of the joystick and throttle sheets. The custom sheet is
// not analysed: it has no texts here.

#include "layouts/analysis/joystick_lines.h"
#include "layouts/sheet.h"

#include <QDateTime>
#include <QStringList>

namespace zeph {

/// What the caption boxes say of the file.
struct FileCaption {
    QString path; ///< full path of the joystick file
    QDateTime time; ///< of the analysis
};

/// The texts of all boxes, the pilot's own boxes with their captions.
QStringList AnalyseJoystickFile(SheetKind kind, const AnalysedFile &file,
                                const FileCaption &caption);

/// The text of one box (0-based), the same as in the whole sheet. No value for a box that is the
/// pilot's own.
std::optional<QString> AnalyseTextbox(SheetKind kind, int box, const AnalysedFile &file,
                                      const FileCaption &caption);

/// The boxes before the pilot's own: the ones that an analysis fills.
int analysedBoxCount(SheetKind kind);

/// The texts of all boxes after they have been cleared.
QStringList ClearAllTextboxes(SheetKind kind);

/// What the status bar says during AnalyseAndExtract, in order.
QStringList extractionStatuses();
/// What it says during the analysis of the whole sheet after that.
QStringList analysisStatuses(SheetKind kind);

} // namespace zeph
