// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/rawform.h"

#include "tests/composer/tumbo/tumbo_fixture.h"

#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTabBar>

using namespace zeph;

namespace tumbo_window_test {

namespace {

class Tumbo : public test::TumboTest
{
};

/// Inserts of CommandPasteJ with the key a and Shift, by the view.
struct PasteRow {
    int button;
    QString kdKu;
    QString kdKuPlain;
    QString usb;
    QString usbPlain;
};

} // namespace

TEST_F(Tumbo, OpensByItsMenuEntryWithItsCaption)
{
    EXPECT_EQ(tumbo().windowTitle(),
              u"Tumbo - the Thrustmaster key syntax, KD, KU and USB code generator"_s);
    EXPECT_TRUE(editor->action(u"mnuAppsTumbo")->isEnabled());
    EXPECT_FALSE(box(u"RMakeText"_s).isVisible());
    EXPECT_TRUE(part<QWidget>(u"SSTab1TumboControlBox"_s).isVisible());
    EXPECT_TRUE(part<QLabel>(u"LabelBasicHelp"_s).isVisible());
    EXPECT_TRUE(entry(u"mnuViewKDKUUSB_0"_s).isChecked());
    EXPECT_FALSE(entry(u"mnuViewKDKUUSB_1"_s).isChecked());
}

TEST_F(Tumbo, TheComposersButtonOpensItToo)
{
    tumbo().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(windows.get<RAWform>(), nullptr);
    open();
    click(u"Command5_0"_s);
    EXPECT_TRUE(windows.isOpen<RAWform>());
}

TEST_F(Tumbo, HasAButtonForEachKeyWithItsCaptionAndAName)
{
    int count = 0;
    for (const BoardKey &row : boardKeys()) {
        const auto &key = part<QAbstractButton>(u"Command1_"_s + QString::number(row.index));
        EXPECT_FALSE(key.text().isEmpty());
        EXPECT_FALSE(key.accessibleName().isEmpty());
        EXPECT_TRUE(tumbo().rect().contains(key.mapTo(&tumbo(), key.rect().center())));
        EXPECT_GE(key.width(), 20) << row.index;
        ++count;
    }
    EXPECT_EQ(count, 112);
    EXPECT_EQ(key(u"a"_s).text(), u"a"_s);
    EXPECT_EQ(key(u"LSHF"_s).accessibleName(), u"Left Shift"_s);
}

TEST_F(Tumbo, EachCaptionHasRoomOnTheSmallestBoard)
{
    KeyBoard board;
    board.resize(board.minimumSizeHint());
    board.show();
    QFont smallest = board.font();
    smallest.setPixelSize(7);
    const QFontMetricsF metrics(smallest);
    for (const BoardKey &row : boardKeys()) {
        EXPECT_LE(metrics.horizontalAdvance(row.caption(false)), board.key(row.index)->width() - 3)
            << row.name.toString().toStdString();
    }
}

TEST_F(Tumbo, ShiftChangesTheTwentyOneCaptionsAndBackAgain)
{
    const QString plain = u"`-=\\[];',./1234567890"_s;
    const QString shifted = u"~_+|{}:\"<>?!@#$%^&*()"_s;
    for (const bool on : { true, false }) {
        toggle(1);
        for (int i = 0; i < plain.size(); ++i) {
            const QString caption = on ? QString(shifted[i]) : QString(plain[i]);
            EXPECT_EQ(key(QString(plain[i])).text(), caption == u"&"_s ? u"&&"_s : caption);
        }
        EXPECT_EQ(key(u"a"_s).text(), u"a"_s);
    }
}

TEST_F(Tumbo, ATogglesBackIsOrangeWhileItIsOn)
{
    const QColor orange(0xFF, 0xC0, 0x80);
    for (const int number : { 1, 2, 3 }) {
        auto &button = part<QPushButton>(u"ToggleButton%1"_s.arg(number));
        EXPECT_NE(button.palette().color(QPalette::Button), orange);
        toggle(number);
        EXPECT_EQ(button.palette().color(QPalette::Button), orange);
        toggle(number);
        EXPECT_NE(button.palette().color(QPalette::Button), orange);
    }
}

TEST_F(Tumbo, APressShowsTheNotationsAndMakesInsertTheDefault)
{
    press(u"q"_s);
    EXPECT_EQ(shown(), (QStringList{ u"q"_s, u"q"_s, u"q"_s, u"q q"_s }));
    EXPECT_TRUE(part<QPushButton>(u"CommandPasteJ_0"_s).isDefault());
    choose(u"mnuViewKDKUUSB_1"_s);
    EXPECT_EQ(shown(), (QStringList{ u"q"_s, u"D14"_s, u"U14"_s, u"D14 U14"_s }));
}

TEST_F(Tumbo, TogglesAndOptionsRefreshTheBoxesWhileAKeyIsShown)
{
    choose(u"mnuViewKDKUUSB_1"_s);
    toggle(1);
    EXPECT_EQ(shown(), (QStringList{ QString(), QString(), QString(), QString() }));
    press(u"1"_s);
    EXPECT_EQ(shown()[0], u"SHF 1"_s);
    choose(u"mnuOption1_2"_s);
    EXPECT_EQ(shown(), (QStringList{ u"!"_s, u"DE1 D1E"_s, u"U1E UE1"_s, u"DE1 D1E U1E UE1"_s }));
    toggle(2);
    EXPECT_EQ(shown()[0], u"CTL !"_s);
    toggle(1);
    EXPECT_EQ(shown()[0], u"CTL 1"_s);
}

TEST_F(Tumbo, TheAmpersandOfKey7IsOne)
{
    choose(u"mnuOption1_2"_s);
    toggle(1);
    press(u"7"_s);
    EXPECT_EQ(shown()[0], u"&"_s);
}

TEST_F(Tumbo, TheViewNamesBoxesAndEntries)
{
    EXPECT_EQ(part<QLabel>(u"LabelMake"_s).text(), u"Key Down"_s);
    EXPECT_EQ(part<QLabel>(u"LabelBreak"_s).text(), u"Key Up"_s);
    EXPECT_EQ(entry(u"mnuOption1_1"_s).text(), u"Add &KD(), KU()"_s);
    EXPECT_EQ(entry(u"mnuCreatePRraw"_s).text(), u"&Create /P /R statement using KD, KU codes"_s);
    choose(u"mnuViewKDKUUSB_1"_s);
    EXPECT_EQ(part<QLabel>(u"LabelMake"_s).text(), u"USB key Down"_s);
    EXPECT_EQ(part<QLabel>(u"LabelBreak"_s).text(), u"USB key Up"_s);
    EXPECT_EQ(entry(u"mnuOption1_1"_s).text(), u"Add &USB ()"_s);
    EXPECT_EQ(entry(u"mnuCreatePRraw"_s).text(), u"&Create /P /R statement using USB codes"_s);
    EXPECT_FALSE(entry(u"mnuViewKDKUUSB_0"_s).isChecked());
    choose(u"mnuViewKDKUUSB_1"_s);
    EXPECT_TRUE(entry(u"mnuViewKDKUUSB_1"_s).isChecked());
}

TEST_F(Tumbo, EachInsertWritesItsNotation)
{
    const PasteRow rows[] = {
        { 0, u"SHF a"_s, u"SHF a"_s, u"SHF a"_s, u"SHF a"_s },
        { 1, u"KD (LSHF a)"_s, u"LSHF a"_s, u"USB (DE1 D04)"_s, u"DE1 D04"_s },
        { 2, u"KU (a LSHF)"_s, u"a LSHF"_s, u"USB (U04 UE1)"_s, u"U04 UE1"_s },
        { 3, u"USB (LSHF a a LSHF)"_s, u"LSHF a a LSHF"_s, u"USB (DE1 D04 U04 UE1)"_s,
          u"DE1 D04 U04 UE1"_s },
    };
    choose(u"mnuViewCodes"_s);
    toggle(1);
    for (const bool brackets : { true, false }) {
        for (const int view : { 0, 1 }) {
            choose(u"mnuViewKDKUUSB_"_s + QString::number(view));
            for (const PasteRow &row : rows) {
                setJoystick(u"BTN S1 "_s);
                press(u"a"_s);
                clickPart(u"CommandPasteJ_"_s + QString::number(row.button));
                const QString &text = view == 0 ? (brackets ? row.kdKu : row.kdKuPlain)
                                                : (brackets ? row.usb : row.usbPlain);
                EXPECT_EQ(joystick().text(), u"BTN S1 "_s + text + u'\n');
                EXPECT_EQ(joystick().selStart(), joystick().length());
                EXPECT_EQ(shown(), (QStringList{ QString(), QString(), QString(), QString() }));
                joystick().undo();
                EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
            }
        }
        choose(u"mnuOption1_1"_s);
    }
}

TEST_F(Tumbo, AnInsertGoesToTheCaretOfTheSelectedDocumentAndStartsNoLine)
{
    option(&TumboSettings::AddTumboCR, false);
    setJoystick(u"BTN S1 x"_s);
    setMacro(u"Fire =\nGun = x"_s, 6);
    press(u"SPC"_s);
    clickPart(u"CommandPasteJ_0"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC\nGun = x"_s);
    EXPECT_EQ(macro().selStart(), 10);
    EXPECT_EQ(joystick().text(), u"BTN S1 x"_s);
    macro().undo();
    EXPECT_EQ(macro().text(), u"Fire =\nGun = x"_s);
}

TEST_F(Tumbo, OnlyItsOwnOptionAddsTheLineEnd)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    option(&TumboSettings::AddTumboCR, false);
    press(u"SPC"_s);
    clickPart(u"CommandPasteJ_0"_s);
    EXPECT_EQ(joystick().text(), u"SPC"_s);
    settings.of<ComposerSettings>().CompTabsAddCr = false;
    option(&TumboSettings::AddTumboCR, true);
    press(u"TAB"_s);
    clickPart(u"CommandPasteJ_0"_s);
    EXPECT_EQ(joystick().text(), u"SPC TAB\n"_s);
}

TEST_F(Tumbo, AnInsertIsInTheColoursOfTyping)
{
    settings.of<ColourSettings>().RAWColour = 0x00BB00;
    settings.of<ColourSettings>().JoystickTextDefaultColour = 0x111111;
    editor->applySettings();
    setJoystick(QString());
    press(u"a"_s);
    clickPart(u"CommandPasteJ_1"_s);
    ASSERT_EQ(joystick().text(), u"KD (a)\n"_s);
    EXPECT_EQ(colourAt(joystick(), 0), 0x00BB00U);
    EXPECT_EQ(colourAt(joystick(), 3), 0x00BB00U);
    EXPECT_EQ(colourAt(joystick(), 4), 0x111111U);
}

TEST_F(Tumbo, EmptyBoxesDoNothing)
{
    setJoystick(u"BTN S1 a"_s);
    for (int i = 0; i < 5; ++i) {
        clickPart(u"CommandPasteJ_"_s + QString::number(i));
    }
    for (int i = 0; i < 4; ++i) {
        clickPart(u"Command10_"_s + QString::number(i));
    }
    choose(u"mnuCreatePRraw"_s);
    choose(u"mnuAddRemCombined"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_EQ(total(), QString());
    choose(u"mnuViewKDKUUSB_1"_s);
    press(u"POVU"_s);
    clickPart(u"CommandPasteJ_1"_s);
    clickPart(u"Command10_2"_s);
    choose(u"mnuCreatePRraw"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_EQ(total(), QString());
}

TEST_F(Tumbo, ACombinedBoxOfOneBlankIsFilled)
{
    choose(u"mnuViewKDKUUSB_1"_s);
    press(u"POVU"_s);
    choose(u"mnuAddRemCombined"_s);
    EXPECT_EQ(total(), u"USB ( ) Rem 'POVU'"_s);
}

TEST_F(Tumbo, AddAppendsWithoutABlank)
{
    press(u"a"_s);
    clickPart(u"Command10_0"_s);
    clickPart(u"Command10_1"_s);
    clickPart(u"Command10_2"_s);
    clickPart(u"Command10_3"_s);
    EXPECT_EQ(total(), u"aKD (a)KU (a)USB (a a)"_s);
    choose(u"mnuViewKDKUUSB_1"_s);
    choose(u"mnuOption1_1"_s);
    clickPart(u"Command10_1"_s);
    EXPECT_EQ(total(), u"aKD (a)KU (a)USB (a a)D04"_s);
}

TEST_F(Tumbo, WordsAreAppendedAndTheStatementHasTheFocus)
{
    clickPart(u"Command6"_s);
    clickPart(u"Command7"_s);
    clickPart(u"Command8"_s);
    EXPECT_EQ(total(), u" DLY( Rem  RPT("_s);
    EXPECT_TRUE(box(u"TotalCombinedText"_s).hasFocus());
}

TEST_F(Tumbo, PressAndReleaseAndRemAreSetInPlaceOfTheStatement)
{
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"old"_s);
    toggle(1);
    press(u"q"_s);
    choose(u"mnuCreatePRraw"_s);
    EXPECT_EQ(total(), u"/P KD(LSHF q) /R KU(q LSHF) Rem 'SHF q'"_s);
    choose(u"mnuViewKDKUUSB_1"_s);
    choose(u"mnuCreatePRraw"_s);
    EXPECT_EQ(total(), u"/P USB(DE1 D14) /R USB(U14 UE1) Rem 'SHF q'"_s);
    choose(u"mnuAddRemCombined"_s);
    EXPECT_EQ(total(), u"USB (DE1 D14 U14 UE1) Rem 'SHF q'"_s);
}

TEST_F(Tumbo, TheStatementGoesInWithOOnALineOfItsOwn)
{
    setJoystick(u"BTN S1 "_s);
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"/I a /O b"_s);
    clickPart(u"CommandPasteJ_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 /I a \n/O b\n"_s);
    EXPECT_EQ(total(), QString());
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
}

TEST_F(Tumbo, OBeforeIIsRefusedAndNothingChanges)
{
    setJoystick(u"BTN S1 "_s);
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"/O b /I a"_s);
    dialogs.answer(u"Incorrect modifier order buddy"_s, BoxButton::Ok);
    clickPart(u"CommandPasteJ_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 "_s);
    EXPECT_EQ(total(), u"/O b /I a"_s);
}

TEST_F(Tumbo, AProtectedMacroFileRefusesAndTheBoxesStay)
{
    setMacro(u"Fire = "_s);
    editor->documents().setProtected(true);
    press(u"a"_s);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    clickPart(u"CommandPasteJ_0"_s);
    EXPECT_EQ(macro().text(), u"Fire = "_s);
    EXPECT_EQ(shown()[0], u"a"_s);
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"SPC"_s);
    part<QComboBox>(u"ComboMacros"_s).setCurrentText(u"Gun"_s);
    editor->documents().select(DocumentKind::Joystick);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    clickPart(u"cmdCreateMacro"_s);
    EXPECT_EQ(macro().text(), u"Fire = "_s);
}

TEST_F(Tumbo, OffersTheDefaultMacrosNamesAndBeginsWithNone)
{
    auto &names = part<QComboBox>(u"ComboMacros"_s);
    EXPECT_EQ(names.count(), 2);
    EXPECT_EQ(names.itemText(1), u"Gear_Up"_s);
    EXPECT_EQ(names.currentText(), QString());
}

TEST_F(Tumbo, WithoutTheDefaultMacrosItsListIsEmpty)
{
    closeTumbo();
    QFile::remove(folder.file(u"DefaultMacros.txt"_s));
    openTumbo();
    EXPECT_EQ(part<QComboBox>(u"ComboMacros"_s).count(), 0);
    createMacro(u"Gear"_s, u"g"_s);
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
}

TEST_F(Tumbo, ANameThatIsTypedStaysAsItIs)
{
    auto &names = part<QComboBox>(u"ComboMacros"_s);
    names.setFocus();
    QTest::keyClicks(&names, u"Gear"_s);
    EXPECT_EQ(names.currentText(), u"Gear"_s);
}

TEST_F(Tumbo, AMacroGoesToTheEndOnALineOfItsOwn)
{
    setMacro(u"Fire = SPC\nGun = x"_s, 3);
    editor->documents().select(DocumentKind::Joystick);
    createMacro(u"Gear Up"_s, u"CTL g"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC\nGun = x\nGear_Up = CTL g"_s);
    EXPECT_EQ(macro().selStart(), macro().length());
    EXPECT_EQ(editor->documents().selected().kind(), DocumentKind::Macro);
    createMacro(u"Flaps"_s, u"f"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC\nGun = x\nGear_Up = CTL g\nFlaps = f"_s);
    macro().undo();
    macro().undo();
    EXPECT_EQ(macro().text(), u"Fire = SPC\nGun = x"_s);
}

TEST_F(Tumbo, AMacroTakesTheEmptyLineOfTheCaret)
{
    setMacro(u"Fire = SPC\n\nGun = x"_s, 11);
    createMacro(u"Gear"_s, u"g"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC\nGear = g\nGun = x"_s);
    EXPECT_EQ(macro().selStart(), 19);
    macro().undo();
    EXPECT_EQ(macro().text(), u"Fire = SPC\n\nGun = x"_s);
}

TEST_F(Tumbo, AMacroNeedsNoLineEndAtTheEndOfATextThatHasOneOrIsEmpty)
{
    setMacro(u"Fire = SPC\n"_s, 0);
    createMacro(u"Gear"_s, u"g"_s);
    EXPECT_EQ(macro().text(), u"Fire = SPC\nGear = g"_s);
    setMacro(QString());
    createMacro(u"Gear"_s, u"g"_s);
    EXPECT_EQ(macro().text(), u"Gear = g"_s);
}

TEST_F(Tumbo, AMacroWithoutNameOrStatementDoesNothing)
{
    setMacro(u"Fire = SPC"_s);
    createMacro(QString(), u"g"_s);
    createMacro(u"Gear"_s, QString());
    EXPECT_EQ(macro().text(), u"Fire = SPC"_s);
}

TEST_F(Tumbo, AMacroIsColouredAsTyped)
{
    settings.of<ColourSettings>().RAWColour = 0x00BB00;
    editor->applySettings();
    setMacro(u"Fire = SPC"_s);
    createMacro(u"Gear"_s, u"KD (g)"_s);
    ASSERT_EQ(macro().text(), u"Fire = SPC\nGear = KD (g)"_s);
    EXPECT_EQ(colourAt(macro(), 18), 0x00BB00U);
}

TEST_F(Tumbo, TellsWhatItsStatementIsToTheWindowThatOpenedIt)
{
    QStringList fed;
    tools->openTumboFor([&fed](const QString &text) { fed.append(text); });
    press(u"a"_s);
    clickPart(u"Command10_0"_s);
    clickPart(u"Command10_0"_s);
    EXPECT_EQ(fed, (QStringList{ u"a"_s, u"aa"_s }));
    QStringList others;
    tools->openTumboFor([&others](const QString &text) { others.append(text); });
    clickPart(u"Command10_0"_s);
    EXPECT_EQ(fed.size(), 2);
    EXPECT_EQ(others, QStringList{ u"aaa"_s });
    tools->mnuInsertRAW_Click();
    clickPart(u"Command10_0"_s);
    EXPECT_EQ(others.size(), 1);
}

TEST_F(Tumbo, FeedsNoWindowThatIsGone)
{
    auto window = std::make_unique<QObject>();
    int fed = 0;
    tools->openTumboFor([&fed](const QString &) { ++fed; }, window.get());
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"a"_s);
    window.reset();
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"b"_s);
    EXPECT_EQ(fed, 1);
}

TEST_F(Tumbo, ShowsTheKeysThatTheStatementHoldsDown)
{
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"KD (LSHF q)"_s);
    EXPECT_EQ(key(u"LSHF"_s).accessibleDescription(), u"Held down by the statement"_s);
    EXPECT_EQ(key(u"q"_s).accessibleDescription(), u"Held down by the statement"_s);
    EXPECT_EQ(key(u"w"_s).accessibleDescription(), QString());
    const auto faceOf = [this](const QString &name) {
        QAbstractButton &button = key(name);
        return button.grab().toImage().pixelColor(button.width() / 2, 4);
    };
    EXPECT_EQ(faceOf(u"q"_s), QColor(0xFF, 0xC0, 0x80));
    EXPECT_NE(faceOf(u"w"_s), QColor(0xFF, 0xC0, 0x80));
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"KD (LSHF q) KU (q LSHF)"_s);
    EXPECT_EQ(key(u"q"_s).accessibleDescription(), QString());
}

TEST_F(Tumbo, ViewsAndOptionsAreKeptAtOnce)
{
    for (const auto &[name, key] : std::initializer_list<std::pair<QString, QString>>{
             { u"mnuOption1_0"_s, u"AddTumboCR"_s },
             { u"mnuOption1_1"_s, u"AddRawBrackets"_s },
             { u"mnuOption1_2"_s, u"UseShfKey"_s },
             { u"mnuViewCodes"_s, u"ViewUSBcodes"_s },
             { u"mnuViewUSBcodes"_s, u"TumboControlBox"_s },
             { u"mnuHideBasicHelp"_s, u"HideBasicHelp"_s } }) {
        const bool before = entry(name).isChecked();
        choose(name);
        EXPECT_EQ(store().text(u"Tumbo", key), before ? u"0"_s : u"1"_s) << key.toStdString();
        choose(name);
        EXPECT_EQ(store().text(u"Tumbo", key), before ? u"1"_s : u"0"_s) << key.toStdString();
    }
    part<QAbstractButton>(u"CheckAlwaysInsert"_s).click();
    EXPECT_EQ(store().text(u"Tumbo", u"AlwaysInsert"), u"1"_s);
    EXPECT_EQ(store().text(u"Tumbo", u"TumboLeft"), QString());
}

TEST_F(Tumbo, PartsAreShownAndHiddenAndTheWindowFollows)
{
    const int full = tumbo().height();
    choose(u"mnuViewUSBcodes"_s);
    EXPECT_FALSE(part<QWidget>(u"SSTab1TumboControlBox"_s).isVisible());
    EXPECT_LT(tumbo().height(), full);
    choose(u"mnuViewUSBcodes"_s);
    EXPECT_TRUE(part<QWidget>(u"SSTab1TumboControlBox"_s).isVisible());
    EXPECT_EQ(tumbo().height(), full);
    choose(u"mnuViewCodes"_s);
    EXPECT_TRUE(box(u"RMakeText"_s).isVisible());
    EXPECT_TRUE(box(u"RCombinedText"_s).isVisible());
    choose(u"mnuHideBasicHelp"_s);
    EXPECT_FALSE(part<QLabel>(u"LabelBasicHelp"_s).isVisible());
}

TEST_F(Tumbo, ReadsItsOptionsAndPlaceWhenItIsLoaded)
{
    closeTumbo();
    folder.write(u"Zeph.ini"_s,
                 "[Tumbo]\r\nAddTumboCR=0\r\nUseShfKey=0\r\nViewUSBcodes=1\r\nHideBasicHelp=1\r\n"
                 "TumboControlBox=0\r\nAlwaysInsert=1\r\nTumboTop=75\r\nTumboLeft=45\r\n");
    openTumbo();
    EXPECT_FALSE(entry(u"mnuOption1_0"_s).isChecked());
    EXPECT_TRUE(entry(u"mnuOption1_1"_s).isChecked());
    EXPECT_FALSE(entry(u"mnuOption1_2"_s).isChecked());
    EXPECT_TRUE(box(u"RBreakText"_s).isVisible());
    EXPECT_FALSE(part<QWidget>(u"SSTab1TumboControlBox"_s).isVisible());
    EXPECT_FALSE(part<QLabel>(u"LabelBasicHelp"_s).isVisible());
    EXPECT_TRUE(part<QAbstractButton>(u"CheckAlwaysInsert"_s).isChecked());
}

TEST_F(Tumbo, ClosingUnloadsItAndKeepsItsPlace)
{
    tumbo().move(30, 20);
    closeTumbo();
    EXPECT_EQ(windows.get<RAWform>(), nullptr);
    EXPECT_EQ(store().text(u"Tumbo", u"TumboLeft"), u"450"_s);
    EXPECT_EQ(store().text(u"Tumbo", u"TumboTop"), u"300"_s);
}

TEST_F(Tumbo, OKAndEscapeHideItAndItKeepsWhatItHolds)
{
    part<QLineEdit>(u"TotalCombinedText"_s).setText(u"kept"_s);
    clickPart(u"CommandOK"_s);
    EXPECT_TRUE(tumbo().isHidden());
    openTumbo();
    EXPECT_EQ(total(), u"kept"_s);
    QTest::keyClick(&box(u"TotalCombinedText"_s), Qt::Key_Escape);
    EXPECT_TRUE(tumbo().isHidden());
}

TEST_F(Tumbo, EnterClicksTheDefaultOrWhatBelongsToTheField)
{
    option(&TumboSettings::AddTumboCR, false);
    press(u"a"_s);
    QTest::keyClick(&key(u"a"_s), Qt::Key_Return);
    EXPECT_EQ(joystick().text(), u"a"_s);
    box(u"TotalCombinedText"_s).setFocus();
    box(u"TotalCombinedText"_s).setText(u"b"_s);
    QTest::keyClick(&box(u"TotalCombinedText"_s), Qt::Key_Return);
    EXPECT_EQ(joystick().text(), u"a b"_s);
    box(u"TotalCombinedText"_s).setText(u"c"_s);
    auto &names = part<QComboBox>(u"ComboMacros"_s);
    names.setFocus();
    names.setEditText(u"Gear"_s);
    QTest::keyClick(&names, Qt::Key_Return);
    EXPECT_EQ(macro().text(), u"Gear = c"_s);
}

TEST_F(Tumbo, EnterClicksTheButtonThatHasTheFocus)
{
    press(u"a"_s);
    auto &add = part<QPushButton>(u"Command10_0"_s);
    add.setFocus();
    QTest::keyClick(&add, Qt::Key_Return);
    EXPECT_EQ(total(), u"a"_s);
    EXPECT_EQ(joystick().text(), QString());
    // A toggle is turned with Space, as a key of the board is pressed.
    auto &shift = part<QPushButton>(u"ToggleButton1"_s);
    shift.setFocus();
    QTest::keyClick(&shift, Qt::Key_Return);
    EXPECT_FALSE(shift.isChecked());
    EXPECT_EQ(joystick().text(), u"a\n"_s);
}

TEST_F(Tumbo, KeysAreReachedByArrowsAndPressedWithSpace)
{
    key(u"a"_s).setFocus();
    QTest::keyClick(&key(u"a"_s), Qt::Key_Right);
    EXPECT_TRUE(key(u"s"_s).hasFocus());
    EXPECT_EQ(key(u"s"_s).focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(key(u"a"_s).focusPolicy(), Qt::ClickFocus);
    QTest::keyClick(&key(u"s"_s), Qt::Key_Space);
    EXPECT_EQ(shown()[0], u"s"_s);
    QTest::keyClick(&key(u"s"_s), Qt::Key_Tab);
    EXPECT_TRUE(part<QWidget>(u"ToggleButton1"_s).hasFocus());
    QTest::keyClick(&part<QWidget>(u"ToggleButton1"_s), Qt::Key_Backtab);
    EXPECT_TRUE(key(u"s"_s).hasFocus());
}

TEST_F(Tumbo, AClickOnAControlWritesItsStatementOrGoesToIt)
{
    setJoystick(QString());
    clickPart(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN T1 "_s);
    joystick().select(0, 0);
    clickPart(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN T1 "_s);
    EXPECT_EQ(joystick().selStart(), 7);
    part<QAbstractButton>(u"CheckAlwaysInsert"_s).click();
    clickPart(u"BTN_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN T1 \nBTN T1 "_s);
}

TEST_F(Tumbo, HatsAndTriggerHaveMenus)
{
    setJoystick(QString());
    clickPart(u"HAT_1"_s);
    auto &hat = part<QMenu>(u"mnuHatPos"_s);
    EXPECT_TRUE(hat.isVisible());
    EXPECT_EQ(hat.findChild<QAction *>(u"MnuHatPosition_4"_s)->text(), u"H2M"_s);
    hat.findChild<QAction *>(u"MnuHatCornerPostion_2"_s)->trigger();
    hat.close();
    EXPECT_EQ(joystick().text(), u"BTN H2UR "_s);
    clickPart(u"TRIG"_s);
    auto &trigger = part<QMenu>(u"mnuTrig"_s);
    EXPECT_TRUE(trigger.isVisible());
    trigger.actions()[1]->trigger();
    trigger.close();
    EXPECT_EQ(joystick().text(), u"BTN H2UR \nBTN TG2 "_s);
}

TEST_F(Tumbo, ShowsTheHandleThatTheComposerHasChosenMeanwhile)
{
    auto &handles = part<QComboBox>(u"ComboJoystickHandle"_s);
    EXPECT_EQ(handles.currentText(), u"F-16 Block 50"_s);
    open();
    control<QComboBox>(u"ComboJoystickHandle"_s).setCurrentText(u"Straight grip"_s);
    openTumbo();
    EXPECT_EQ(handles.currentText(), u"Straight grip"_s);
}

TEST_F(Tumbo, RunsTheEditorsKeysAndItsHelp)
{
    QSignalSpy undo(editor->action(u"mnuAppsComposer"), &QAction::triggered);
    QTest::keyClick(&tumbo(), Qt::Key_F3);
    EXPECT_EQ(undo.count(), 1);
    openTumbo();
    QSignalSpy help(tools, &ComposerTools::helpWanted);
    QTest::keyClick(&tumbo(), Qt::Key_F1);
    ASSERT_EQ(help.count(), 1);
    EXPECT_EQ(help[0][0].toInt(), 2045);
}

TEST_F(Tumbo, FitsASmallScreenWithAllItsParts)
{
    choose(u"mnuViewCodes"_s);
    EXPECT_LE(tumbo().minimumSizeHint().width(), 1024);
    EXPECT_LE(tumbo().minimumSizeHint().height(), 720);
}

TEST_F(Tumbo, NoMnemonicIsTwiceInTheWindowOrInAMenu)
{
    choose(u"mnuViewCodes"_s);
    const auto letterOf = [](const QString &caption) {
        const qsizetype mark = QString(caption).replace(u"&&"_s, u"  "_s).indexOf(u'&');
        return mark < 0 ? QString() : caption.mid(mark + 1, 1).toUpper();
    };
    QStringList letters;
    for (const auto *button : tumbo().findChildren<QAbstractButton *>()) {
        letters.append(button->isVisible() ? letterOf(button->text()) : QString());
    }
    for (const auto *label : tumbo().findChildren<QLabel *>()) {
        letters.append(label->isVisible() && label->buddy() ? letterOf(label->text()) : QString());
    }
    for (const auto *tabs : tumbo().findChildren<QTabBar *>()) {
        for (int i = 0; i < tabs->count(); ++i) {
            letters.append(letterOf(tabs->tabText(i)));
        }
    }
    for (const QAction *menu : tumbo().findChild<QMenuBar *>()->actions()) {
        letters.append(letterOf(menu->text()));
        QStringList within;
        for (const QAction *each : menu->menu()->actions()) {
            within.append(letterOf(each->text()));
        }
        within.removeAll(QString());
        EXPECT_EQ(within.removeDuplicates(), 0) << within.join(u' ').toStdString();
    }
    letters.removeAll(QString());
    EXPECT_GT(letters.size(), 10);
    EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u' ').toStdString();
}

} // namespace tumbo_window_test
