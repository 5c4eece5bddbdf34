// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Generated macro and joystick files, dense in what the macro tools tell apart.

#include "platform/core/base.h"

#include <QRandomGenerator>
#include <QStringList>

namespace zeph::test {

class MacroTexts
{
public:
    explicit MacroTexts(quint32 seed) : m_random(seed) { }

    /// A text of pieces drawn from the list.
    QString of(const QStringList &pieces, int count)
    {
        QString text;
        for (int i = 0; i < count; ++i) {
            text += pieces[m_random.bounded(pieces.size())];
        }
        return text;
    }
    QString macroFile()
    {
        return of({ u"rem --"_s, u"Rem ---"_s, u"REM"_s, u"rem "_s, u"rem x"_s, u"~"_s, u"//"_s,
                    u"="_s, u" = "_s, u" "_s, u"\t"_s, u"Fire"_s, u"gEAR up"_s, u"\n"_s, u"\n"_s,
                    u"\nrem --\n"_s, u"\n"_s, u"All"_s },
                  40);
    }
    QString joystickFile()
    {
        return of({ u"Fire"_s, u"FIRE"_s, u"Gear"_s, u"Gear-Up"_s, u"-"_s, u"+"_s, u" "_s, u"_"_s,
                    u"\n"_s, u")"_s, u"}"_s, u">"_s, u"\t"_s, u"rem "_s, u"Rem"_s, u"1"_s, u","_s,
                    u"é"_s, u"É"_s },
                  60);
    }
    QStringList names()
    {
        QStringList names{ {} };
        for (int i = 0; i < 12; ++i) {
            names.append(
                of({ u"Fire"_s, u"gear"_s, u"-"_s, u"+"_s, u"up"_s, u"1"_s, u"_"_s, u"É"_s },
                   1 + int(m_random.bounded(3))));
        }
        return names;
    }

private:
    QRandomGenerator m_random;
};

} // namespace zeph::test
