// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The default arrangement of a sheet: boxes around the picture, each as near its control as the
// others let it.

#include "layouts/arrange/leader_lines.h"

namespace zeph {

/// Places picture and boxes for the sheet's size: the title block (sim, file, date) at the foot,
/// the boxes of controls in a column on either side of the picture, in an order in which their
/// leader lines cross as little as they can, and under the picture the boxes of controls that it
/// does not show and the pilot's own. A box is as high as its text needs; where there is no room
/// for all, the highest boxes give way. On a sheet that is too small for that, the boxes stand in
/// rows over the picture. No boxes overlap and all are inside the sheet. Boxes that are hidden stay
/// where they are, and so does everything on a custom sheet.
void RepositionTextBoxes(Sheet &sheet, const PictureWithControls &picture, const CharFormat &plain);

} // namespace zeph
