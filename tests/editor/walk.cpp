// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/editor/walk.h"

#include "documents/document_settings.h"
#include "editor/files/both_texts.h"
#include "editor/files/loss_guards.h"
#include "platform/core/paths.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTimer>

#include <gtest/gtest.h>

namespace zeph::test {

namespace {

void setUp(Settings &settings)
{
    settings.of<DocumentSettings>().UndoMax = 15;
    auto &colours = settings.of<ColourSettings>();
    colours.JoystickTextDefaultColour = 0x111111;
    colours.MacroTextDefaultColour = 0x222222;
    colours.BTNColour = 0xB00000;
    colours.SlashColour = 0x0000AA;
    colours.RAWColour = 0x00BB00;
    colours.MiscellaneousColour = 0xCCCC00;
    colours.RemStatements = 0x818181;
}

} // namespace

Walk::Walk(quint32 seed)
    : chance(seed),
      model(*this, emptyDocument(DocumentKind::Joystick), emptyDocument(DocumentKind::Macro))
{
    model.settings = { .folder = paths.filesFolder(), .now = clock.now() };
    for (const DocumentKind kind : bothKinds) {
        model.of(kind).path = model.settings.folder + freshName(kind);
    }
    writeFile(u"a.tmj"_s, "Rem  Last modified: 1 May 2001, 1:00 am\r\nBTN S1 /I Fire /O Gun\r\n");
    writeFile(u"a.tmm"_s, "Fire = SPC\r\nGun = g\r\n");
    writeFile(u"b.tmj"_s, "USE MDEF a\r\nBTN S2 /U Fire\r\n  /M Gun\r\n");
    writeFile(u"b.tmm"_s, "Rem ---\r\nRem Guns\r\nRem ---\r\nGun = KD(g)\r\nBomb=b");
    writeFile(u"c.tmj"_s, "");
    writeFile(u"d.f22"_s, "BTN S1 a");
    writeFile(u"d.m22"_s, "Fire = x\n");
    setUp(settings);
    makeEditor();
    editor->applySettings();
}

WalkDocument Walk::emptyDocument(DocumentKind kind)
{
    setUp(settings);
    const auto &colours = settings.of<ColourSettings>();
    const bool isJoystick = kind == DocumentKind::Joystick;
    return { kind,
             { .plain = editor->documents().plainFormat(kind),
               .scheme = isJoystick ? colours.joystickScheme() : colours.macroScheme(),
               .passes = isJoystick ? joystickPasses() : macroPasses(),
               .undoMax = settings.of<DocumentSettings>().UndoMax } };
}

void Walk::writeFile(const QString &name, const QByteArray &bytes)
{
    model.files[file(name, bytes)] = bytes;
}

BoxButton Walk::answer(const QString &title, const QList<BoxButton> &buttons)
{
    const BoxButton button = buttons[upTo(int(buttons.size()) - 1)];
    dialogs.answer(title, button);
    return button;
}

std::optional<QString> Walk::fileFor(std::optional<DocumentKind> kind)
{
    std::optional<QString> path;
    if (upTo(6) > 0) {
        const bool isMacro = kind.value_or(bothKinds[upTo(1)]) == DocumentKind::Macro;
        const QString bases = u"aabbccdn"_s; // n is none of the files at the start
        const QChar base = bases[upTo(int(bases.size()) - 1)];
        const QString ending = base == u'd' ? u"22"_s : isMacro ? u"mm"_s : u"mj"_s;
        const QChar first = base != u'd' ? u't' : isMacro ? u'm' : u'f';
        path = model.settings.folder + base + u'.' + first + ending;
    }
    dialogs.answerFile(path);
    return path;
}

void Walk::closeBothTexts()
{
    if (++m_textsToClose == 1) {
        QTimer::singleShot(0, editor.get(), [this] { closeNextTexts(); });
    }
}

void Walk::closeNextTexts()
{
    auto *texts = qobject_cast<BothTexts *>(QApplication::activeModalWidget());
    if (texts && texts->isVisible()) {
        texts->reject();
        --m_textsToClose;
    }
    if (m_textsToClose > 0) {
        QTimer::singleShot(0, editor.get(), [this] { closeNextTexts(); });
    }
}

void Walk::comeBack()
{
    model.check();
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(&editor->view(), &activated);
    QCoreApplication::sendPostedEvents(&editor->guards().changedFiles, QEvent::MetaCall);
    if (oneIn(20)) {
        QCoreApplication::processEvents();
    }
}

bool Walk::coloursTyping()
{
    return settings.of<DocumentSettings>().ColourWithTyping;
}

QString Walk::word()
{
    const QString words[] = { u"BTN S1 "_s,  u"/I Fire /O Gun"_s, u"USE MDEF a"_s, u"Rem all"_s,
                              u"Gun = g "_s, u"DLY(60) "_s,       u"Fire "_s,      u"THR 1 5 "_s };
    return words[upTo(int(std::size(words)) - 1)];
}

void Walk::run(QStringView entry, Qt::Key key)
{
    if (oneIn(2)) {
        trigger(entry);
    } else {
        sendKey(key, {}, Qt::ControlModifier);
    }
}

void Walk::sendKey(int key, const QString &text, Qt::KeyboardModifiers held)
{
    QKeyEvent press(QEvent::KeyPress, key, held, text);
    QApplication::sendEvent(&control(), &press);
    QKeyEvent release(QEvent::KeyRelease, key, held, text);
    QApplication::sendEvent(&control(), &release);
}

void Walk::typeKey(int key)
{
    if (coloursTyping() && (key == Qt::Key_Space || key == Qt::Key_Return)) {
        document().paintLines();
    }
    document().type(key);
    if (coloursTyping() && key == Qt::Key_Backspace) {
        document().paintLines();
    }
    const QString character = key > 0xFFFF ? QString() : QString(QChar(key));
    sendKey(key, key == Qt::Key_Tab ? u"\t"_s : character);
}

void Walk::select(int anchor, int caret)
{
    document().put(anchor, caret);
    shown().setCaret(anchor, caret);
}

void Walk::selectSome()
{
    const auto size = int(document().text().size());
    const int from = upTo(size);
    const int to = std::min(size, from + upTo(oneIn(6) ? 400 : 12));
    oneIn(2) ? select(from, to) : select(to, from);
}

void Walk::compare()
{
    for (const DocumentKind kind : bothKinds) {
        compareDocument(kind);
    }
    EXPECT_EQ(int(shown().kind()), int(document().kind()));
    const auto captionOf = [this](QStringView entry) {
        return editor->action(entry)->text().toStdString();
    };
    EXPECT_EQ(captionOf(u"mnuEditUndo"), document().history().undoCaption().toStdString());
    EXPECT_EQ(captionOf(u"mnuEditRedo"), document().history().redoCaption().toStdString());
    EXPECT_EQ(dialogs.unexpected().join(u'\n').toStdString(), "");
    EXPECT_EQ(m_textsToClose, 0);
    compareFiles();
}

void Walk::compareDocument(DocumentKind kind)
{
    Document &is = editor->documents().of(kind);
    WalkModel::File &file = model.of(kind);
    SCOPED_TRACE(kind == DocumentKind::Joystick ? "joystick" : "macro");
    EXPECT_EQ(is.text().toStdString(), file.document.text().toStdString());
    EXPECT_EQ(is.richText(), file.document.now().richText());
    EXPECT_EQ(is.state(), file.document.state());
    EXPECT_EQ(is.path().toStdString(), file.path.toStdString());
    EXPECT_EQ(is.cursor().anchor(), file.document.anchor());
    EXPECT_EQ(is.cursor().position(), file.document.caret());
    EXPECT_EQ(is.history().slots() - is.history().UndoIndex(), file.document.history().steps(true));
    EXPECT_EQ(is.history().UndoIndex() - 1, file.document.history().steps(false));
}

void Walk::compareFiles()
{
    const QStringList names = QDir(model.settings.folder).entryList(QDir::Files, QDir::Name);
    QStringList expected;
    for (auto file = model.files.cbegin(); file != model.files.cend(); ++file) {
        expected.append(nameOf(file.key()));
        EXPECT_EQ(folder.read(u"Files/"_s + expected.back()), file.value())
            << file.key().toStdString();
    }
    EXPECT_EQ(names.join(u' ').toStdString(), expected.join(u' ').toStdString());
}

} // namespace zeph::test
