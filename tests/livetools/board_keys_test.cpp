// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/board_keys.h"
#include "livetools/listen.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <set>

using namespace zeph;

namespace {

/// So many further on than the keyboard itself do X servers and Wayland count.
#ifdef Q_OS_WIN
constexpr quint32 furtherPlaces = 0;
#else
constexpr quint32 furtherPlaces = 8;
#endif

QString heard(const KeyStroke &stroke)
{
    const auto index = listenedKey(stroke);
    return index ? boardKey(*index)->name.toString() : u"none"_s;
}

} // namespace

TEST(Board, NoKeyCoversAnotherAndAllAreOnIt)
{
    for (const BoardKey &key : boardKeys()) {
        EXPECT_TRUE(QRect(QPoint(), boardCells).contains(key.cellRect())) << key.index;
        for (const BoardKey &other : boardKeys()) {
            EXPECT_TRUE(&key == &other || !key.cellRect().intersects(other.cellRect()))
                << key.index << ' ' << other.index;
        }
    }
}

TEST(Board, TheArrowKeysReachEveryKey)
{
    std::set<int> reached{ 20 };
    QList<int> open{ 20 };
    while (!open.isEmpty()) {
        const int from = open.takeFirst();
        for (const auto way : { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down }) {
            const int to = neighbourOf(from, way);
            if (reached.insert(to).second) {
                open.append(to);
            }
        }
    }
    EXPECT_EQ(reached.size(), 112U);
}

TEST(Board, NeighboursAreThoseOnTheKeyboard)
{
    const auto next = [](QStringView name, Qt::Key way) {
        return boardKey(neighbourOf(boardKeyNamed(name)->index, way))->name.toString();
    };
    EXPECT_EQ(next(u"g", Qt::Key_Right), u"h"_s);
    EXPECT_EQ(next(u"g", Qt::Key_Left), u"f"_s);
    EXPECT_EQ(next(u"ENT", Qt::Key_Right), u"KP4"_s);
    EXPECT_EQ(next(u"BSP", Qt::Key_Right), u"INS"_s);
    EXPECT_EQ(next(u"UARROW", Qt::Key_Down), u"DARROW"_s);
    EXPECT_EQ(next(u"ESC", Qt::Key_Left), u"ESC"_s);
    EXPECT_EQ(next(u"ESC", Qt::Key_Up), u"ESC"_s);
    EXPECT_EQ(next(u"POVU", Qt::Key_Right), u"POVUR"_s);
}

TEST(Board, KeysAreFoundByNameSymbolAndCode)
{
    EXPECT_EQ(boardKeyNamed(u"kpent")->index, 65);
    EXPECT_EQ(boardKeyNamed(u"!")->index, 1);
    EXPECT_EQ(boardKeyNamed(u"\"")->index, 53);
    EXPECT_EQ(boardKeyNamed(u"SHF")->index, 58);
    EXPECT_EQ(boardKeyNamed(u"ctl")->index, 60);
    EXPECT_EQ(boardKeyNamed(u"ALT")->index, 62);
    EXPECT_EQ(boardKeyNamed(u"Fire"), nullptr);
    EXPECT_EQ(boardKeyNamed(u""), nullptr);
    EXPECT_EQ(boardKeyCoded(u"e5")->index, 59);
    EXPECT_EQ(boardKeyCoded(u""), nullptr);
    EXPECT_EQ(boardKeyAt(0), nullptr);
}

TEST(Board, ModifiersAreWrittenInOneOrder)
{
    EXPECT_EQ(GetModifier({}), QString());
    EXPECT_EQ(GetModifier({ .shift = true, .ctrl = true, .alt = true }), u"CTL ALT SHF "_s);
}

TEST(ListenedKey, PlacesTellAllKeysOfTheKeyboard)
{
#ifdef Q_OS_WIN
    GTEST_SKIP() << "PlacesOfWindows tells what this system counts in another way";
#endif
    // As the kernel's input codes count; the number pad does not depend on Num Lock.
    struct Row {
        quint32 place;
        QStringView names;
    };
    const Row rows[] = {
        { 1, u"ESC 1 2 3 4 5 6 7 8 9 0 - = BSP TAB q w e r t y u i o p [ ] ENT LCTL" },
        { 30, u"a s d f g h j k l ; ' ` LSHF \\ z x c v b n m , . / RSHF KP* LALT SPC CAPS" },
        { 59, u"F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 NUML SCRLCK KP7 KP8 KP9 KP- KP4 KP5 KP6 KP+" },
        { 79, u"KP1 KP2 KP3 KP0 KP." },
        { 87, u"F11 F12" },
        { 96, u"KPENT RCTL KP/ PRNTSCRN RALT" },
        { 102, u"HOME UARROW PGUP LARROW RARROW END DARROW PGDN INS DEL" },
        { 119, u"BRK" },
    };
    int checked = 0;
    for (const Row &row : rows) {
        quint32 place = row.place;
        for (const QString &name : row.names.toString().split(u' ')) {
            EXPECT_EQ(heard({ Qt::Key_unknown, {}, furtherPlaces + place++, 0 }), name);
            ++checked;
        }
    }
    EXPECT_EQ(checked, 101);
}

TEST(ListenedKey, APlaceCountsMoreThanWhatTheLayoutMakesOfIt)
{
    EXPECT_EQ(heard({ Qt::Key_Q, {}, furtherPlaces + 30, 'q' }), u"a"_s);
    EXPECT_EQ(heard({ Qt::Key_Home, Qt::KeypadModifier, furtherPlaces + 71, 0 }), u"KP7"_s);
}

TEST(ListenedKey, WithoutPlacesTheNumberPadIsToldByItsModifier)
{
    const auto pad = [](Qt::Key key) {
        return heard({ key, Qt::KeypadModifier, 0, 0 });
    };
    EXPECT_EQ(pad(Qt::Key_7), u"KP7"_s);
    EXPECT_EQ(pad(Qt::Key_Home), u"KP7"_s);
    EXPECT_EQ(pad(Qt::Key_Insert), u"KP0"_s);
    EXPECT_EQ(pad(Qt::Key_Clear), u"KP5"_s);
    EXPECT_EQ(pad(Qt::Key_Delete), u"KP."_s);
    EXPECT_EQ(pad(Qt::Key_Enter), u"KPENT"_s);
    EXPECT_EQ(pad(Qt::Key_Plus), u"KP+"_s);
    EXPECT_EQ(pad(Qt::Key_Minus), u"KP-"_s);
    EXPECT_EQ(pad(Qt::Key_Asterisk), u"KP*"_s);
    EXPECT_EQ(pad(Qt::Key_Slash), u"KP/"_s);
    EXPECT_EQ(pad(Qt::Key_Period), u"KP."_s);
    EXPECT_EQ(heard({ Qt::Key_7 }), u"7"_s);
    EXPECT_EQ(heard({ Qt::Key_Home }), u"HOME"_s);
    EXPECT_EQ(heard({ Qt::Key_Return }), u"ENT"_s);
}

TEST(ListenedKey, WithoutPlacesRightModifiersAreToldByTheirSymbols)
{
    EXPECT_EQ(heard({ Qt::Key_Shift, Qt::ShiftModifier, 0, 0xFFE1 }), u"LSHF"_s);
    EXPECT_EQ(heard({ Qt::Key_Shift, Qt::ShiftModifier, 0, 0xFFE2 }), u"RSHF"_s);
    EXPECT_EQ(heard({ Qt::Key_Control, Qt::ControlModifier, 0, 0xFFE3 }), u"LCTL"_s);
    EXPECT_EQ(heard({ Qt::Key_Control, Qt::ControlModifier, 0, 0xFFE4 }), u"RCTL"_s);
    EXPECT_EQ(heard({ Qt::Key_Alt, Qt::AltModifier, 0, 0xFFE9 }), u"LALT"_s);
    EXPECT_EQ(heard({ Qt::Key_Alt, Qt::AltModifier, 0, 0xFFEA }), u"RALT"_s);
    EXPECT_EQ(heard({ Qt::Key_AltGr, {}, 0, 0xFE03 }), u"RALT"_s);
    EXPECT_EQ(heard({ Qt::Key_AltGr }), u"RALT"_s);
    EXPECT_EQ(heard({ Qt::Key_Control, Qt::ControlModifier }), u"LCTL"_s);
}

TEST(ListenedKey, WithoutPlacesASymbolIsTheKeyThatHasIt)
{
    EXPECT_EQ(heard({ Qt::Key_Exclam, Qt::ShiftModifier }), u"1"_s);
    EXPECT_EQ(heard({ Qt::Key_QuoteDbl, Qt::ShiftModifier }), u"'"_s);
    EXPECT_EQ(heard({ Qt::Key_F12 }), u"F12"_s);
    EXPECT_EQ(heard({ Qt::Key_Print }), u"PRNTSCRN"_s);
}

TEST(ListenedKey, TheBoardLacksSomeKeys)
{
    EXPECT_EQ(heard({ Qt::Key_Super_L }), u"none"_s);
    EXPECT_EQ(heard({ Qt::Key_F13 }), u"none"_s);
    EXPECT_EQ(heard({ Qt::Key_VolumeUp }), u"none"_s);
    EXPECT_EQ(heard({}), u"none"_s);
}

TEST(ListenedKey, PlacesOfWindows)
{
    const auto name = [](quint32 scanCode) {
        const BoardKey *key = boardKeyAt(placeOfWindowsScanCode(scanCode));
        return key ? key->name.toString() : u"none"_s;
    };
    EXPECT_EQ(name(0x1E), u"a"_s);
    EXPECT_EQ(name(0x1D), u"LCTL"_s);
    EXPECT_EQ(name(0x11D), u"RCTL"_s);
    EXPECT_EQ(name(0x38), u"LALT"_s);
    EXPECT_EQ(name(0x138), u"RALT"_s);
    EXPECT_EQ(name(0x2A), u"LSHF"_s);
    EXPECT_EQ(name(0x36), u"RSHF"_s);
    EXPECT_EQ(name(0x1C), u"ENT"_s);
    EXPECT_EQ(name(0x11C), u"KPENT"_s);
    EXPECT_EQ(name(0x47), u"KP7"_s);
    EXPECT_EQ(name(0x147), u"HOME"_s);
    EXPECT_EQ(name(0x35), u"/"_s);
    EXPECT_EQ(name(0x135), u"KP/"_s);
    EXPECT_EQ(name(0x37), u"KP*"_s);
    EXPECT_EQ(name(0x137), u"PRNTSCRN"_s);
    EXPECT_EQ(name(0x45), u"BRK"_s);
    EXPECT_EQ(name(0x145), u"NUML"_s);
    EXPECT_EQ(name(0x57), u"F11"_s);
    EXPECT_EQ(name(0x53), u"KP."_s);
    EXPECT_EQ(name(0x153), u"DEL"_s);
    EXPECT_EQ(name(0x15B), u"none"_s);
    EXPECT_EQ(name(0), u"none"_s);
}
