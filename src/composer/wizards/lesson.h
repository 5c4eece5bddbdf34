// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "language/file_kinds.h"
#include "platform/core/base.h"

#include <span>

namespace zeph {

/// A page of a lesson: a text beside a picture.
struct LessonPage {
    QStringView title;
    /// An HTML file of the folder Wizards. What it has in PRE is an example, which is shown in the
    /// colours of the Editor.
    QStringView text;
    /// What the picture shows, in words.
    QStringView says;
    /// A picture file of the program's folder: a picture of the Cougar, or an SVG drawing.
    QStringView picture;
    /// The controls that a picture of the Cougar has rings around, as places.h calls them, a blank
    /// between each two.
    QStringView controls = {};
};

/// What a wizard or a window that teaches tells, page by page.
struct Lesson {
    QStringView name; ///< of the window's object
    QStringView caption;
    DocumentKind kind; ///< of the file that the lesson is about
    int topic; ///< of the help
    /// A wizard makes a file on its way and ends with its last page; other lessons change nothing.
    bool isWizard;
    std::span<const LessonPage> pages;
};

extern const Lesson macroFileLesson;
extern const Lesson joystickFileLesson;
extern const Lesson slashModifiersLesson;
extern const Lesson mouseMicrostickLesson;
extern const Lesson dlyAndRateLesson;
extern const Lesson configurationLesson;

} // namespace zeph
