// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the lists, dialogs and samples of the page "Use / Misc." show.

#include "language/words.h"
#include "platform/process_launcher.h"

#include <QStringList>

namespace zeph {

using language::operator""_w;

/// The controls that can be a DirectX button or the shift button, in the order of the lists.
inline constexpr QStringView useControls[] = {
    u"H1U"_w, u"H1D"_w, u"H1L"_w, u"H1R"_w, u"H2U"_w, u"H2D"_w, u"H2L"_w, u"H2R"_w,
    u"H3U"_w, u"H3D"_w, u"H3L"_w, u"H3R"_w, u"H4U"_w, u"H4D"_w, u"H4L"_w, u"H4R"_w,
    u"TG1"_w, u"TG2"_w, u"S1"_w,  u"S2"_w,  u"S3"_w,  u"S4"_w,  u"T1"_w,  u"T2"_w,
    u"T3"_w,  u"T4"_w,  u"T5"_w,  u"T6"_w,  u"T7"_w,  u"T8"_w,  u"T9"_w,  u"T10"_w,
};

/// How an application's window opens, and what the page says of it. The list shows the style's
/// number; the last one is selected first.
struct WindowStyleRow {
    WindowStyle style;
    QStringView description;
};
inline constexpr WindowStyleRow windowStyles[] = {
    { WindowStyle::Hidden, u"Application is hidden and focus is passed to the hidden window." },
    { WindowStyle::NormalFocus,
      u"Application has focus and is restored to its original size and position." },
    { WindowStyle::MinimisedFocus, u"Application is maximised with focus." },
    { WindowStyle::MaximisedFocus, u"Window is maximised with focus." },
    { WindowStyle::NormalNoFocus,
      u"Application is restored to its most recent size and position. Zeph remains the active "
      u"Window." },
    { WindowStyle::MinimisedNoFocus,
      u"Default setting. Application is displayed as an icon. Zeph remains active." },
};

/// The sample beside the rate, which follows the tick for the whole file.
constexpr QStringView rateSample(bool isOfFile)
{
    return isOfFile ? u"USE RATE (60)" : u"BTN S2 /T RATE (0)\n               /T RATE (60)";
}

/// What a Browse button asks for.
struct UseBrowse {
    QStringView title;
    /// In the form of FileRequest::filter.
    QStringView filter;
    /// Index of the text box TXT_USE that receives the file.
    int text;
    /// Whether the box receives the whole path; otherwise the file's name. A dialog for a name
    /// starts in the folder of the user's files.
    bool wholePath = false;
};
/// The buttons CMD_Browse, by index.
inline constexpr UseBrowse useBrowses[] = {
    { u"Select your macrofile", u"Macro file (*.tmm)|*.tmm", 0 },
    { u"Select your image file", u"Image files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif", 5 },
    { u"Select your ReadMe file", u"Text files (*.txt,*.rtf)|*.txt;*.rtf", 6 },
    { u"Select your application",
      u"Executables (*.exe)|*.exe|Batch files (*.bat)|*.bat|All files (*.*)|*.*", 7, true },
};
/// What the text box receives for the path that the user chose.
QString browsedText(const UseBrowse &browse, const QString &path);

/// The profiles of the Cougar's folder, of which one is selected while there are any.
class ProfileList
{
public:
    /// Takes the files' names, with their ending, and selects the first.
    void UpdateProfiles(const QStringList &names);
    /// Selects a profile by its name, in any case. False, and nothing changed, when it is not
    /// listed.
    bool select(QStringView name);

    const QStringList &names() const { return m_names; }
    /// The index of the selected one, or -1.
    int index() const { return m_index; }
    /// The name of the selected one; empty without profiles.
    QString selected() const { return m_names.value(m_index); }

private:
    QStringList m_names;
    int m_index = -1;
};

} // namespace zeph
