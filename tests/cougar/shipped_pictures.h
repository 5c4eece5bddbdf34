// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"
#include "tests/support/temp_folder.h"

#include <QFile>

namespace zeph::test {

/// A program's folder with the pictures, drawings and handles that ship.
class PicturesFolder : public TempFolder
{
public:
    PicturesFolder()
    {
        for (const QString &name :
             { u"F-16 Block 50"_s, u"Straight grip"_s, u"Throttle"_s, u"Rudders"_s }) {
            copy(QStringLiteral(ZEPH_PICTURES), name + u".bmp"_s);
            copy(QStringLiteral(ZEPH_SOURCE_DIR "/artwork"), name + u".svg"_s);
        }
        copy(QStringLiteral(ZEPH_PICTURES), u"F-16 Block 50.tmh"_s);
        copy(QStringLiteral(ZEPH_PICTURES), u"Straight grip.tmh"_s);
    }

private:
    void copy(const QString &from, const QString &name) const
    {
        if (!QFile::copy(from + u'/' + name, file(name))) {
            qWarning("no %s", qPrintable(name));
        }
    }
};

} // namespace zeph::test
