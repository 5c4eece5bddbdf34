// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the bytes of a picture's file tell without decoding them. Decoders of the toolkit show a
// file that was cut off as if the rest were black or grey.

#include <QByteArray>

namespace zeph {

enum class PictureKind { None, Bitmap, Jpeg, Gif, Png };

/// The kind by the first bytes, whatever the file is called.
PictureKind pictureKind(const QByteArray &bytes);

/// Whether all bytes of the (first) picture are there. False for no picture at all.
bool isWholePicture(const QByteArray &bytes);

} // namespace zeph
