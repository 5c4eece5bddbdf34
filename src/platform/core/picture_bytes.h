// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the bytes of a picture's file tell without decoding them. Decoders of the toolkit show a
// file that was cut off as if the rest were black or grey.

#include <QByteArray>
#include <QSize>

namespace zeph {

enum class PictureKind { None, Bitmap, Jpeg, Gif, Png };

/// The kind by the first bytes, whatever the file is called.
PictureKind pictureKind(const QByteArray &bytes);

/// How large the header says that the picture is, in pixels; empty when it does not say.
QSize claimedSize(const QByteArray &bytes);

/// Whether all bytes of the (first) picture are there. False for no picture at all.
bool isWholePicture(const QByteArray &bytes);

} // namespace zeph
