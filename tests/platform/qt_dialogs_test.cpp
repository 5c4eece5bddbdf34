// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/qt_dialogs.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace zeph;
using test::TempFolder;

namespace {

/// Does something with the next modal window of a kind, as soon as it is up.
template <class Window> void whenShown(const std::function<void(Window *)> &act)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        if (auto *window = qobject_cast<Window *>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            timer->stop();
            act(window);
        }
    });
    timer->start(5);
}

void press(Qt::Key key)
{
    whenShown<QMessageBox>([key](QMessageBox *box) { QTest::keyClick(box, key); });
}

/// The dialog offers only the styles that a family really has.
QString familyWithBold()
{
    const QStringList families = QFontDatabase::families();
    for (const QString &family : families) {
        if (QFontDatabase::styles(family).contains(u"Bold"_s)) {
            return family;
        }
    }
    ADD_FAILURE() << "no font of this system has a bold style";
    return {};
}

const QList<BoxButton> yesNo = { BoxButton::Yes, BoxButton::No };
const QList<BoxButton> yesNoCancel = { BoxButton::Yes, BoxButton::No, BoxButton::Cancel };

} // namespace

TEST(QtDialogsBox, ShowsTitleTextIconButtonsAndDefault)
{
    QtDialogs dialogs;
    bool seen = false;
    whenShown<QMessageBox>([&seen](QMessageBox *box) {
        EXPECT_EQ(box->windowTitle(), u"File protected"_s);
        EXPECT_EQ(box->text(), u"<b>a</b> & b\nc"_s);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box->standardButton(box->defaultButton()), QMessageBox::No);
        seen = true;
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(dialogs.box({ u"File protected"_s, u"<b>a</b> & b\nc"_s, BoxIcon::Exclamation, yesNo,
                            BoxButton::No }),
              BoxButton::Yes);
    EXPECT_TRUE(seen);
}

TEST(QtDialogsBox, EachIconIsTheToolkitsOwn)
{
    QtDialogs dialogs;
    const std::pair<BoxIcon, QMessageBox::Icon> icons[] = {
        { BoxIcon::None, QMessageBox::NoIcon },
        { BoxIcon::Information, QMessageBox::Information },
        { BoxIcon::Question, QMessageBox::Question },
        { BoxIcon::Exclamation, QMessageBox::Warning },
        { BoxIcon::Stop, QMessageBox::Critical },
    };
    for (const auto &[icon, shown] : icons) {
        whenShown<QMessageBox>([expected = shown](QMessageBox *box) {
            EXPECT_EQ(box->icon(), expected);
            box->button(QMessageBox::Ok)->click();
        });
        EXPECT_EQ(dialogs.box({ .title = u"T"_s, .text = u"x"_s, .icon = icon }), BoxButton::Ok);
    }
}

TEST(QtDialogsBox, EscapeAnswersCancelElseNoElseTheOnlyButton)
{
    QtDialogs dialogs;
    press(Qt::Key_Escape);
    EXPECT_EQ(dialogs.box({ u"T"_s, u"x"_s, BoxIcon::Question, yesNoCancel, BoxButton::Yes }),
              BoxButton::Cancel);
    press(Qt::Key_Escape);
    EXPECT_EQ(dialogs.box({ u"T"_s, u"x"_s, BoxIcon::Question, yesNo, BoxButton::Yes }),
              BoxButton::No);
    press(Qt::Key_Escape);
    EXPECT_EQ(dialogs.box({ .title = u"T"_s, .text = u"x"_s }), BoxButton::Ok);
}

TEST(QtDialogsBox, ReturnAnswersTheDefault)
{
    QtDialogs dialogs;
    press(Qt::Key_Return);
    EXPECT_FALSE(dialogs.ask(u"T"_s, u"Lose your work?"_s));
}

TEST(NameFilters, CaptionsAndPatternsComeInPairs)
{
    EXPECT_EQ(nameFilters(u"Joystick files|*.tmj;*.f22|Macro files|*.tmm"_s),
              (QStringList{ u"Joystick files (*.tmj *.f22)"_s, u"Macro files (*.tmm)"_s }));
}

TEST(NameFilters, ACaptionThatShowsItsPatternsShowsThemOnce)
{
    EXPECT_EQ(nameFilters(u"WinZip package (*.zip)|*.zip"_s),
              QStringList{ u"WinZip package (*.zip)"_s });
}

TEST(NameFilters, PatternsThatACaptionWritesInItsOwnWayAreShownOnceToo)
{
    EXPECT_EQ(nameFilters(u"Original TM files (*.f22,*.b50,*.adv) |*.f22;*.b50;*.adv"_s),
              QStringList{ u"Original TM files (*.f22 *.b50 *.adv)"_s });
    EXPECT_EQ(nameFilters(u"Files (of mine)|*.a"_s), QStringList{ u"Files (of mine) (*.a)"_s });
}

TEST(NameFilters, AllFilesAreAllFilesHereToo)
{
    EXPECT_EQ(nameFilters(u"Everything|*.*"_s), QStringList{ u"Everything (*)"_s });
    EXPECT_EQ(nameFilters(QString()), QStringList{ u"All files (*)"_s });
    EXPECT_EQ(nameFilters(u"half a pair"_s), QStringList{ u"All files (*)"_s });
}

TEST(QtDialogsFiles, OpenGivesTheChosenFile)
{
    const TempFolder folder;
    const QString path = folder.write(u"a.tmj"_s, "x");
    QtDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog *dialog) {
        EXPECT_EQ(dialog->windowTitle(), u"Select the file"_s);
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog->nameFilters(), QStringList{ u"Joystick files (*.tmj)"_s });
        EXPECT_EQ(dialog->directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        dialog->selectFile(path);
        static_cast<QDialog *>(dialog)->accept();
    });
    const auto chosen = dialogs.openFile({ .title = u"Select the file"_s,
                                           .filter = u"Joystick files|*.tmj"_s,
                                           .defaultExtension = u"tmj"_s,
                                           .folder = folder.path(),
                                           .name = {} });
    EXPECT_EQ(chosen, QDir::toNativeSeparators(path));
}

TEST(QtDialogsFiles, SaveAddsTheExtensionAndDoesNotAskAboutAnExistingFile)
{
    const TempFolder folder;
    folder.write(u"a.tmj"_s, "x");
    QtDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog *dialog) {
        EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
        dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    });
    const auto chosen = dialogs.saveFile({ .title = u"Save"_s,
                                           .filter = u"Joystick files|*.tmj"_s,
                                           .defaultExtension = u"tmj"_s,
                                           .folder = folder.path(),
                                           .name = u"a"_s });
    EXPECT_EQ(chosen, QDir::toNativeSeparators(folder.file(u"a.tmj"_s)));
}

TEST(QtDialogsFiles, CancelGivesNoValue)
{
    QtDialogs dialogs;
    whenShown<QFileDialog>([](QFileDialog *dialog) { dialog->reject(); });
    EXPECT_EQ(dialogs.openFile({}), std::nullopt);
    whenShown<QFileDialog>([](QFileDialog *dialog) { dialog->reject(); });
    EXPECT_EQ(dialogs.chooseFolder(u"Folder"_s, QString()), std::nullopt);
}

TEST(QtDialogsFiles, AFolderIsChosenFromWhereItStarts)
{
    const TempFolder folder;
    QtDialogs dialogs;
    whenShown<QFileDialog>([&](QFileDialog *dialog) {
        EXPECT_EQ(dialog->windowTitle(), u"Locate the HOTAS directory"_s);
        EXPECT_EQ(dialog->fileMode(), QFileDialog::Directory);
        dialog->selectFile(folder.path());
        static_cast<QDialog *>(dialog)->accept();
    });
    const auto chosen = dialogs.chooseFolder(u"Locate the HOTAS directory"_s, folder.path());
    ASSERT_TRUE(chosen);
    EXPECT_EQ(QDir(*chosen).canonicalPath(), QDir(folder.path()).canonicalPath());
}

TEST(QtDialogsColour, StartsWithTheColourAndGivesTheChosenOne)
{
    QtDialogs dialogs;
    whenShown<QColorDialog>([](QColorDialog *dialog) {
        EXPECT_EQ(dialog->currentColor(), QColor(1, 2, 3));
        dialog->setCurrentColor(QColor(255, 128, 0));
        static_cast<QDialog *>(dialog)->accept();
    });
    EXPECT_EQ(dialogs.chooseColour(colorRef(1, 2, 3)), colorRef(255, 128, 0));
    whenShown<QColorDialog>([](QColorDialog *dialog) { dialog->reject(); });
    EXPECT_EQ(dialogs.chooseColour(0), std::nullopt);
}

TEST(QtDialogsColour, ShowsTheCustomColoursAndKeepsThemOnlyWhenTheyChange)
{
    QtDialogs dialogs;
    CustomColours kept{};
    kept[0] = colorRef(1, 2, 3);
    kept[15] = colorRef(4, 5, 6);
    int times = 0;
    dialogs.customColours = { [&kept] { return kept; },
                              [&kept, &times](const CustomColours &colours) {
                                  kept = colours;
                                  ++times;
                              } };
    whenShown<QColorDialog>([](QColorDialog *dialog) {
        EXPECT_EQ(QColorDialog::customColor(0), QColor(1, 2, 3));
        EXPECT_EQ(QColorDialog::customColor(15), QColor(4, 5, 6));
        dialog->reject();
    });
    dialogs.chooseColour(0);
    EXPECT_EQ(times, 0);
    whenShown<QColorDialog>([](QColorDialog *dialog) {
        QColorDialog::setCustomColor(1, QColor(7, 8, 9));
        dialog->reject();
    });
    dialogs.chooseColour(0);
    EXPECT_EQ(times, 1);
    EXPECT_EQ(kept[1], colorRef(7, 8, 9));
    EXPECT_EQ(kept[0], colorRef(1, 2, 3));
}

TEST(QtDialogsFont, GivesTheChosenFontAndKeepsTheColour)
{
    QtDialogs dialogs;
    whenShown<QFontDialog>([](QFontDialog *dialog) {
        EXPECT_EQ(dialog->currentFont().pointSizeF(), 10);
        QFont font(familyWithBold(), 14, QFont::Bold);
        font.setUnderline(true);
        dialog->setCurrentFont(font);
        static_cast<QDialog *>(dialog)->accept();
    });
    const auto font = dialogs.chooseFont({ {}, 10, false, false, false, 255U });
    ASSERT_TRUE(font);
    EXPECT_TRUE(font->bold);
    EXPECT_TRUE(font->underline);
    EXPECT_FALSE(font->italic);
    EXPECT_EQ(font->pointSize, 14);
    EXPECT_EQ(font->colour, 255U);
}

TEST(QtDialogsList, GivesTheIndexOfTheChosenLine)
{
    QtDialogs dialogs;
    const auto listOf = [](QDialog *dialog) {
        return dialog->findChild<QListWidget *>();
    };
    whenShown<QDialog>([&](QDialog *dialog) {
        EXPECT_EQ(dialog->windowTitle(), u"Pick one"_s);
        EXPECT_EQ(listOf(dialog)->currentRow(), 0);
        listOf(dialog)->setCurrentRow(2);
        dialog->accept();
    });
    EXPECT_EQ(dialogs.chooseFromList(u"Pick one"_s, { u"a"_s, u"b"_s, u"c"_s }), 2);
    whenShown<QDialog>([&](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.chooseFromList(u"Pick one"_s, { u"a"_s }), std::nullopt);
}

TEST(QtDialogsParent, ABoxStandsOverItsParentEvenAfterTheParentIsGone)
{
    QtDialogs dialogs;
    {
        QWidget parent;
        dialogs.setParent(&parent);
        whenShown<QMessageBox>([&](QMessageBox *box) {
            EXPECT_EQ(box->parentWidget(), &parent);
            box->accept();
        });
        dialogs.tell(u"T"_s, u"x"_s);
    }
    whenShown<QMessageBox>([&](QMessageBox *box) {
        EXPECT_EQ(box->parentWidget(), nullptr);
        box->accept();
    });
    dialogs.tell(u"T"_s, u"x"_s);
}
