// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// A pilot who does anything at all: thousands of actions by chance in the real Editor, and beside
// it a model that says by the rules what has to come of each. ZEPH_WALK_SEED repeats a walk.

#include "documents/document_settings.h"
#include "documents/undo_histories.h"
#include "editor/edit/findandreplace.h"
#include "editor/edit/insert_windows.h"
#include "editor/files/auto_save.h"
#include "editor/files/both_texts.h"
#include "editor/files/file_opening.h"
#include "editor/files/loss_guards.h"
#include "editor/macros/macro_features.h"
#include "editor/macros/macrorenameform.h"
#include "platform/core/rtf.h"
#include "platform/richtext/rich_text_mime.h"
#include "tests/editor/walk_model.h"
#include "tests/support/editor_fixture.h"
#include "tests/support/long_run.h"
#include "tests/support/rich_texts.h"
#include "text/alignment.h"
#include "text/insert_blocks.h"
#include "text/search_rules.h"
#include "text/text_lines.h"
#include "text/text_styles.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

using namespace zeph;
using namespace zeph::test;

namespace {

constexpr DocumentKind bothKinds[] = { DocumentKind::Joystick, DocumentKind::Macro };
const QString words[] = { u"BTN S1 "_s,  u"/I Fire /O Gun"_s, u"USE MDEF a"_s, u"Rem all"_s,
                          u"Gun = g "_s, u"DLY(60) "_s,       u"Fire "_s,      u"THR 1 5 "_s };
constexpr int longest = 1200; ///< characters of a text, which is cut then

class RandomWalk : public EditorTest, public WalkPilot
{
protected:
    RandomWalk()
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
        makeEditor();
        editor->applySettings();
        model = std::make_unique<WalkModel>(*this, documentOf(DocumentKind::Joystick),
                                            documentOf(DocumentKind::Macro));
        model->settings = { .folder = paths.filesFolder(), .now = clock.now() };
        for (const DocumentKind kind : bothKinds) {
            model->of(kind).path = model->settings.folder + freshName(kind);
        }
        write(u"a.tmj"_s, "Rem  Last modified: 1 May 2001, 1:00 am\r\nBTN S1 /I Fire /O Gun\r\n");
        write(u"a.tmm"_s, "Fire = SPC\r\nGun = g\r\n");
        write(u"b.tmj"_s, "USE MDEF a\r\nBTN S2 /U Fire\r\n  /M Gun\r\n");
        write(u"b.tmm"_s, "Rem ---\r\nRem Guns\r\nRem ---\r\nGun = KD(g)\r\nBomb=b");
        write(u"c.tmj"_s, "");
        write(u"d.f22"_s, "BTN S1 a");
        write(u"d.m22"_s, "Fire = x\n");
    }

    WalkDocument documentOf(DocumentKind kind)
    {
        const auto &colours = settings.of<ColourSettings>();
        const bool isJoystick = kind == DocumentKind::Joystick;
        return { kind,
                 { .plain = plainFormat(kind),
                   .scheme = isJoystick ? colours.joystickScheme() : colours.macroScheme(),
                   .passes = isJoystick ? joystickPasses() : macroPasses(),
                   .undoMax = settings.of<DocumentSettings>().UndoMax } };
    }
    CharFormat plainFormat(DocumentKind kind) { return editor->documents().plainFormat(kind); }
    void write(const QString &name, const QByteArray &bytes)
    {
        model->files[file(name, bytes)] = bytes;
    }

    // What the pilot answers.
    BoxButton answer(const QString &title, const QList<BoxButton> &buttons) override
    {
        const BoxButton button = buttons[upTo(int(buttons.size()) - 1)];
        dialogs.answer(title, button);
        return button;
    }
    std::optional<QString> fileFor(std::optional<DocumentKind> kind) override
    {
        std::optional<QString> path;
        if (upTo(6) > 0) {
            const bool isJoystick = kind.value_or(bothKinds[upTo(1)]) == DocumentKind::Joystick;
            const QString bases = u"aabbccdn"_s;
            const QChar base = bases[upTo(7)];
            path = model->settings.folder + base
                + (base != u'd' ? (isJoystick ? u".tmj"_s : u".tmm"_s)
                                : (isJoystick ? u".f22"_s : u".m22"_s));
        }
        dialogs.answerFile(path);
        return path;
    }
    void closeBothTexts() override
    {
        if (++m_textsToClose == 1) {
            QTimer::singleShot(0, editor.get(), [this] { closeNextTexts(); });
        }
    }
    void closeNextTexts()
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

    int upTo(int most) { return chance->upTo(most); }
    bool oneIn(int count) { return upTo(count - 1) == 0; }
    WalkDocument &document() { return model->document(); }
    Document &shown() { return editor->selected(); }
    TextControl &control() { return editor->view().control(shown().kind()); }
    bool coloursTyping() { return settings.of<DocumentSettings>().ColourWithTyping; }
    void trigger(QStringView entry) { editor->action(entry)->trigger(); }

    // The actions. Each tells the model first, which also prepares the answers.
    void typeKey(int key)
    {
        if (coloursTyping() && (key == Qt::Key_Space || key == Qt::Key_Return)) {
            document().paintLines();
        }
        document().type(key);
        if (coloursTyping() && key == Qt::Key_Backspace) {
            document().paintLines();
        }
        sendKey(key, key == Qt::Key_Tab ? u"\t"_s : key > 0xFFFF ? QString() : QString(QChar(key)));
    }
    void sendKey(int key, const QString &text, Qt::KeyboardModifiers held = {})
    {
        QKeyEvent press(QEvent::KeyPress, key, held, text);
        QApplication::sendEvent(&control(), &press);
        QKeyEvent release(QEvent::KeyRelease, key, held, text);
        QApplication::sendEvent(&control(), &release);
    }
    void typeKeys()
    {
        constexpr int keys[] = { 'a',
                                 'B',
                                 '/',
                                 '=',
                                 Qt::Key_Tab,
                                 Qt::Key_Space,
                                 Qt::Key_Space,
                                 Qt::Key_Return,
                                 Qt::Key_Return,
                                 Qt::Key_Backspace,
                                 Qt::Key_Delete };
        for (int count = 1 + upTo(5); count > 0; --count) {
            typeKey(keys[upTo(int(std::size(keys)) - 1)]);
        }
    }
    void typeWord()
    {
        const QString word = words[upTo(int(std::size(words)) - 1)];
        for (const QChar character : word) {
            typeKey(character.unicode());
        }
    }
    void typeStranger() { typeKey(oneIn(3) ? 0x3C0 : 0xE9); }
    void moveCaret()
    {
        constexpr int keys[] = { Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                 Qt::Key_Down, Qt::Key_Home,  Qt::Key_End };
        const int key = keys[upTo(5)];
        sendKey(key, {}, oneIn(3) ? Qt::ShiftModifier : Qt::NoModifier);
        document().follow(shown().cursor().anchor(), shown().cursor().position());
        if (coloursTyping() && key == Qt::Key_Right) {
            document().paintLines();
        }
    }
    void select(int anchor, int caret)
    {
        document().put(anchor, caret);
        shown().setCaret(anchor, caret);
    }
    void selectSome()
    {
        const auto size = int(document().text().size());
        const int from = upTo(size);
        const int to = std::min(size, from + upTo(oneIn(6) ? 400 : 12));
        oneIn(2) ? select(from, to) : select(to, from);
    }
    void selectAll()
    {
        document().follow(0, int(document().text().size()));
        trigger(u"mnuEditSelectAll");
    }
    void placeCaret()
    {
        const int at = upTo(int(document().text().size()));
        select(at, at);
    }
    void removeSelection(QStringView entry)
    {
        if (oneIn(2)) {
            selectSome();
        }
        if (document().selLength() > 0) {
            document().begin();
            const int start = document().selStart();
            document().replace(start, document().selLength(), {});
            document().put(start, start);
            document().commit();
        }
        trigger(entry);
    }
    void cut() { removeSelection(u"mnuEditCut"); }
    void remove() { removeSelection(u"mnuEditDelete"); }
    void copy()
    {
        selectSome();
        trigger(u"mnuEditCopy");
    }
    void cutLong()
    {
        select(upTo(200), int(document().text().size()));
        typeKey(Qt::Key_Delete);
    }
    RichText piece()
    {
        RichText text = chance->make(u"xy S1\n"_s, 20);
        text.paragraphs = RichText::plain(text.text).paragraphs;
        return text;
    }
    /// What pasted text becomes: the plain font, and colours, italics and lines below as they are.
    WalkText pasted(const RichText &text)
    {
        WalkText result = WalkText::of(text);
        const CharFormat plain = document().plainLook().format;
        for (WalkLook &look : result.looks) {
            CharFormat format = plain;
            format.italic = look.format.italic;
            format.underline = look.format.underline;
            format.colour = look.format.colour ? look.format.colour : plain.colour;
            look.format = format;
        }
        return result;
    }
    void paste()
    {
        if (oneIn(3)) {
            QApplication::clipboard()->setText(words[upTo(3)] + u"\n"_s);
        } else if (oneIn(2)) {
            QApplication::clipboard()->setMimeData(new RichTextMime(piece()));
        }
        if (oneIn(2)) {
            selectSome();
        }
        const QMimeData *data = QApplication::clipboard()->mimeData();
        if (!data || data->text().isEmpty()) {
            return;
        }
        const bool isSimple = oneIn(3);
        const auto rich = readRtf(data->data(u"text/rtf"_s));
        document().begin();
        document().insert(!isSimple && rich && !rich->text.isEmpty()
                              ? pasted(*rich)
                              : WalkText::of(data->text(), document().plainLook()));
        document().commit();
        trigger(isSimple ? u"mnuPasteSimple" : u"mnuEditPaste");
    }
    void steps(bool back)
    {
        for (int count = oneIn(8) ? 20 : 1 + upTo(2); count > 0; --count) {
            document().undo(back);
            trigger(back ? u"mnuEditUndo" : u"mnuEditRedo");
        }
    }
    void undo() { steps(true); }
    void redo() { steps(false); }
    void save()
    {
        model->save();
        trigger(u"mnuFileSave");
    }
    void saveBoth()
    {
        model->saveBoth();
        trigger(u"mnuFileSaveBoth");
    }
    void saveAs()
    {
        model->saveAs();
        trigger(u"mnuFileSaveAs");
    }
    void openOne()
    {
        const DocumentKind kind = bothKinds[upTo(1)];
        model->openOne(kind);
        trigger(kind == DocumentKind::Joystick ? u"mnuFileJoystickLoad" : u"MnuFileMacroLoad");
    }
    void openPair()
    {
        model->openPair();
        trigger(u"mnuFileOpen");
    }
    void reload()
    {
        const WalkModel::File &file = model->selected();
        if (!isUntitled(file.name()) && model->files.contains(file.path)) {
            const QString path = file.path;
            model->openOne(document().kind(), path);
            editor->opening().OpenFavouriteFile(path);
        }
    }
    void makeFresh()
    {
        if (oneIn(3)) {
            model->freshBoth();
            trigger(u"mnuFileNewBoth");
            return;
        }
        const DocumentKind kind = oneIn(2) ? bothKinds[upTo(1)] : document().kind();
        const bool isClosed = kind == document().kind() && oneIn(2);
        model->fresh(kind);
        trigger(isClosed                             ? u"mnuFileClose"
                    : kind == DocumentKind::Joystick ? u"mnuFileNewJoystick"
                                                     : u"mnuFileNewMacro");
    }
    /// Another program writes a document's file, as it was, or as the Editor shows it, too.
    void changeFile()
    {
        const WalkModel::File &file = model->of(bothKinds[upTo(1)]);
        if (isUntitled(file.name())) {
            return;
        }
        const QByteArray now = model->files.value(file.path);
        const QByteArray choices[] = { now + "Theirs = t\r\n", "", now.left(now.size() / 2),
                                       file.known.value_or(now),
                                       documentBytes(file.document.text()) };
        write(file.name(), choices[upTo(4)]);
        if (oneIn(2)) {
            save();
        }
    }
    void autosave()
    {
        settings.of<EditorSettings>().AutoSaveTime = 1;
        model->autosave();
        editor->guards().autoSave.Timer1_Timer();
    }
    void colourOne()
    {
        const DocumentKind kind = bothKinds[upTo(1)];
        model->colour(kind);
        trigger(kind == DocumentKind::Joystick ? u"mnuViewColourJoystick" : u"mnuViewColourMacro");
    }
    void colourBoth()
    {
        const DocumentKind before = document().kind();
        for (const DocumentKind kind : bothKinds) {
            WalkDocument &each = model->of(kind).document;
            const int anchor = each.anchor();
            const int caret = each.caret();
            model->colour(kind);
            each.put(anchor, caret);
        }
        model->select(before);
        trigger(u"mnuViewApplyColourBothFiles");
    }
    void colourLine()
    {
        document().begin();
        const QString &text = document().text();
        const qsizetype from = text.left(document().selStart()).lastIndexOf(u'\n') + 1;
        const qsizetype end = text.indexOf(u'\n', document().selStart());
        document().paint(from, (end < 0 ? text.size() : end) - from, typingPasses());
        document().commit();
        trigger(u"mnuViewHighlightLine");
    }
    void removeColour()
    {
        const bool isSelection = oneIn(2);
        WalkDocument &from = isSelection ? document() : model->of(bothKinds[upTo(1)]).document;
        const CharFormat plain = from.plainLook().format;
        const auto take = [&plain](WalkLook &look) {
            look.format.colour = plain.colour;
            look.format.bold = look.format.italic = look.format.underline = false;
            look.isColourByHand = false;
        };
        if (isSelection) {
            from.changeLooks(from.selStart(), from.selLength(), take);
        } else {
            from.changeLooks(0, from.text().size(), take);
        }
        trigger(isSelection                                 ? u"mnuRemoveColourSelectedText"
                    : from.kind() == DocumentKind::Joystick ? u"mnuRemoveColourJoystick"
                                                            : u"mnuRemoveColourMacro");
    }
    void refreshLayout()
    {
        const WalkLook plain = document().plainLook();
        if (!document().text().isEmpty()) {
            document().changeLooks(0, document().text().size(),
                                   [&plain](WalkLook &look) { look = plain; });
            document().store();
        }
        trigger(u"mnuViewReformat");
    }
    void refreshIndent()
    {
        if (!document().text().isEmpty()) {
            document().store();
        }
        trigger(u"mnuViewrefreshIndent");
    }
    void changeRems(bool puts)
    {
        if (oneIn(2)) {
            selectSome();
        }
        const LineRange range =
            touchedLines(document().text(), document().selStart(), document().selLength());
        const auto start = int(range.start);
        WalkText after;
        bool isOther = false;
        qsizetype at = range.start;
        for (const LineChange &line :
             changeLines(QStringView(document().text()).mid(range.start, range.length),
                         puts ? commentedOut : commentedIn)) {
            const qsizetype length = line.text.size() + (line.changed ? (puts ? -4 : 4) : 0);
            const WalkText changed = puts ? document().painted(line.text, remPasses())
                : line.changed            ? document().painted(line.text, typingPasses())
                                          : document().now().mid(at, length);
            after.replace(after.text.size(), 0, changed);
            isOther = isOther || line.changed;
            at += length;
        }
        if (isOther) {
            document().begin();
            document().replace(range.start, range.length, after);
            document().put(start, start);
            document().commit();
        } else {
            document().put(start, start);
        }
        trigger(puts ? u"mnuBlockREM" : u"mnuBlockRemoveREM");
    }
    void putRems() { changeRems(true); }
    void takeRems() { changeRems(false); }
    void align()
    {
        WalkDocument &joystick = model->of(DocumentKind::Joystick).document;
        auto &options = settings.of<EditorSettings>();
        const QString text = joystick.text();
        if (!text.isEmpty()) {
            options.IndentAsWell = oneIn(3);
            const QString aligned =
                AlignSlashes(text, { options.IndentAsWell, options.IndentSpaces });
            const auto anchor = int(placeAfterAligning(text, aligned, joystick.anchor()));
            const auto caret = int(placeAfterAligning(text, aligned, joystick.caret()));
            if (aligned != text) {
                joystick.begin();
                joystick.replace(0, text.size(), WalkText::of(aligned, joystick.plainLook()));
                joystick.put(anchor, caret);
                joystick.commit();
            }
            const DocumentKind before = document().kind();
            model->colour(DocumentKind::Joystick);
            joystick.put(anchor, caret);
            model->select(before);
        }
        trigger(u"mnuAlignSlash");
    }
    void giveLook(const std::function<void(WalkLook &)> &change, QStringView entry)
    {
        if (document().selLength() > 0) {
            document().begin();
            document().changeLooks(document().selStart(), document().selLength(), change);
            document().commit();
        } else {
            WalkLook look = document().typingLook();
            change(look);
            document().choose(look);
        }
        trigger(entry);
    }
    void giveFlag()
    {
        if (oneIn(2)) {
            selectSome();
        }
        constexpr bool CharFormat::*flags[] = { &CharFormat::bold, &CharFormat::italic,
                                                &CharFormat::underline };
        const int index = upTo(2);
        const auto flag = flags[index];
        const WalkText chosen = document().now().mid(document().selStart(), document().selLength());
        const bool isOn = chosen.looks.empty()
            ? document().typingLook().format.*flag
            : std::ranges::all_of(chosen.looks,
                                  [flag](const WalkLook &look) { return look.format.*flag; });
        giveLook([flag, isOn](WalkLook &look) { look.format.*flag = !isOn; },
                 u"mnuFormatArray1_"_s + QString::number(index));
    }
    void giveStyle()
    {
        if (oneIn(2)) {
            selectSome();
        }
        const int index = upTo(8);
        const CharFormat style = defaultTextStyles()[size_t(index)].format;
        giveLook(
            [&style](WalkLook &look) {
                look.isColourByHand = look.isColourByHand || look.format.colour != style.colour;
                look.format = style;
            },
            u"mnuStyleArray_"_s + QString::number(index));
    }
    void insertWord()
    {
        const int at = document().selStart();
        const int index = upTo(int(language::insertWords.size()) - 1);
        const language::Word &word = language::insertWords[size_t(index)];
        QString text = insertText(word, settings.of<EditorSettings>().DefaultDLYvalue);
        if (at < document().text().size() && document().text()[at] != u' ') {
            text += u' ';
        }
        WalkLook look = document().plainLook();
        look.format.colour =
            word.is(language::SlashRole) ? document().scheme().slash : document().scheme().raw;
        document().begin();
        document().insert(WalkText::of(text, look));
        document().commit();
        if (oneIn(2)) {
            trigger(u"mnuSlashArray_"_s + QString::number(index));
            return;
        }
        trigger(u"mnuSlashWindow");
        auto *palette = editor->findChild<SlashWindow *>();
        palette->findChild<QPushButton *>(u"Command1_"_s + QString::number(index))->click();
        palette->close();
    }
    /// Lines in the comments' colour, on lines of their own.
    void insertLines(const QStringList &lines)
    {
        WalkLook rem = document().plainLook();
        rem.format.colour = document().scheme().rem;
        const WalkText end = WalkText::of(u"\n"_s, document().plainLook());
        const int at = document().selStart();
        WalkText all = at > 0 && document().text()[at - 1] != u'\n' ? end : WalkText();
        for (const QString &line : lines) {
            all.replace(all.text.size(), 0, WalkText::of(line, rem));
            all.replace(all.text.size(), 0, end);
        }
        document().begin();
        document().insert(all);
        document().commit();
    }
    QDialog *open(QStringView entry, const QString &form)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        trigger(entry);
        return editor->findChild<QDialog *>(form);
    }
    void insertHeading()
    {
        insertLines(headingBlock(u"Guns"_s));
        QDialog *form = open(u"mnuInsertHeading", u"Heading"_s);
        form->findChild<QComboBox *>(u"Combo1"_s)->setEditText(u"Guns"_s);
        form->findChild<QPushButton *>(u"cmdOK"_s)->click();
    }
    void insertTitle()
    {
        insertLines(titleBlock({ .fileName = model->selected().name(),
                                 .person = u"Jo"_s,
                                 .lastModified = u"long ago"_s,
                                 .controllers = u"Thrustmaster Cougar"_s }));
        QDialog *form = open(u"mnuInsertTitle", u"Title"_s);
        form->findChild<QLineEdit *>(u"Text3"_s)->setText(u"Jo"_s);
        form->findChild<QLineEdit *>(u"Text4"_s)->setText(u"long ago"_s);
        form->findChild<QPushButton *>(u"cmdOK"_s)->click();
    }
    void insertRem()
    {
        const bool endsLine = oneIn(2);
        const int at = document().selStart();
        WalkLook rem = document().plainLook();
        rem.format.colour = document().scheme().rem;
        QString text = remStatement(u"note"_s);
        if (at > 0 && !document().text()[at - 1].isSpace()) {
            text.prepend(u' ');
        }
        document().begin();
        document().insert(WalkText::of(text, rem));
        if (endsLine) {
            document().insert(WalkText::of(u"\n"_s, document().plainLook()));
        }
        document().commit();
        QDialog *form = open(u"mnuInsertRemStatement", u"SingleTextForm"_s);
        form->findChild<QLineEdit *>(u"RichTextBox1"_s)->setText(u"note"_s);
        form->findChild<QCheckBox *>(u"CheckAddCR"_s)->setChecked(endsLine);
        form->findChild<QPushButton *>(u"cmdOK"_s)->click();
    }
    void replaceWords();
    void renameMacro();
    void otherTab()
    {
        model->select(document().kind() == DocumentKind::Joystick ? DocumentKind::Macro
                                                                  : DocumentKind::Joystick);
        trigger(u"mnuViewOtherFile");
    }
    void deleteUndos()
    {
        for (const DocumentKind kind : bothKinds) {
            model->of(kind).document.clearUndos();
        }
        editor->undos().DeleteUndosFromMemory();
    }
    void updateMacros()
    {
        model->updateMacros();
        trigger(u"mnuEditUpdateMacros");
    }
    void drop()
    {
        const QPoint point(upTo(200), upTo(100));
        QMimeData data;
        if (oneIn(3)) {
            // Files are opened from the menus; a text takes none.
            data.setUrls({ QUrl::fromLocalFile(model->settings.folder + u"a.tmj"_s) });
        } else {
            data.setText(words[upTo(3)]);
            document().drop(control().cursorForPosition(point).position(),
                            WalkText::of(data.text(), document().plainLook()));
        }
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(control().viewport(), &enter);
        QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(control().viewport(), &event);
    }
    void changeOption()
    {
        auto &options = settings.of<DocumentSettings>();
        options.ColourWithTyping = oneIn(2);
        options.HighlightLineOnUndo = oneIn(2);
        model->settings.undoClearOnSave = options.UndoClearOnSave = oneIn(4);
        model->settings.updateModified = settings.of<EditorSettings>().UpdateModified = oneIn(2);
    }

    struct Action {
        const char *name;
        int weight;
        void (RandomWalk::*run)();
    };
    static const std::vector<Action> actions;

    /// The window gets the focus, as after every action.
    void comeBack()
    {
        model->check();
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(&editor->view(), &activated);
        QCoreApplication::sendPostedEvents(&editor->guards().changedFiles, QEvent::MetaCall);
        if (oneIn(20)) {
            QCoreApplication::processEvents();
        }
    }
    const Action &chosenAction()
    {
        int total = 0;
        for (const Action &action : actions) {
            total += action.weight;
        }
        int left = upTo(total - 1);
        for (const Action &action : actions) {
            left -= action.weight;
            if (left < 0) {
                return action;
            }
        }
        return actions.front();
    }
    void compare();
    void compareFiles();

    std::unique_ptr<RichTextMaker> chance;
    std::unique_ptr<WalkModel> model;
    int renames = 0;

private:
    int m_textsToClose = 0;
};

void RandomWalk::replaceWords()
{
    const QString wanted[] = { u"S1"_s, u"Fire"_s, u"a"_s, u"rem"_s, u"zz"_s };
    const QString replacements[] = { u"S1"_s, u"S2 "_s, QString(), u"aa"_s };
    const QString word = wanted[upTo(4)];
    const QString by = replacements[upTo(3)];
    const int options = upTo(3) * 2;
    const DocumentKind kind = bothKinds[upTo(1)];
    WalkDocument &searched = model->of(kind).document;
    trigger(u"mnuEditReplace");
    auto *window = editor->findChild<FindAndReplace *>();
    const auto press = [window](const QString &name) {
        window->findChild<QPushButton *>(name)->click();
    };
    window->findChild<QComboBox *>(u"ComboTextReplaceFind"_s)->setEditText(u""_s);
    window->findChild<QComboBox *>(u"ComboTextReplaceFind"_s)->setEditText(word);
    window->findChild<QComboBox *>(u"ComboTextReplaceWith"_s)->setEditText(by);
    window->findChild<QCheckBox *>(u"WholeWordR"_s)->setChecked(options & 2);
    window->findChild<QCheckBox *>(u"MatchCaseR"_s)->setChecked(options & 4);
    const bool isJoystick = kind == DocumentKind::Joystick;
    window->findChild<QRadioButton *>(isJoystick ? u"OptionJoystickR"_s : u"OptionMacroR"_s)
        ->setChecked(true);
    const SearchResult hit = search(searched.text(), { word, options, true, 0 });
    const auto length = int(word.size());
    if (hit.verdict != SearchVerdict::Hit) {
        answer(hit.verdict != SearchVerdict::NoText ? u"Text not found"_s
                   : isJoystick                     ? u"No text in joystick file"_s
                                                    : u"No text in macro file"_s,
               { BoxButton::Ok });
        press(u"Command3"_s);
    } else if (oneIn(2)) {
        press(u"Command3"_s);
        model->select(kind);
        searched.put(int(hit.start), int(hit.start) + length);
        const auto hits = hitsToReplace(searched.text(), word, by, options);
        if (!hits.empty()) {
            searched.begin();
            searched.replaceAll(hits, length, by);
            searched.commit();
        }
        answer(u"Replaced 'em all for you. Now buy me a drink"_s, { BoxButton::Ok });
        press(u"Command6"_s);
    } else {
        press(u"Command3"_s);
        model->select(kind);
        const int start = int(hit.start);
        const int end = start + int(by.size());
        searched.put(start, start + length);
        searched.begin();
        searched.replaceAll({ start }, length, by);
        searched.commit();
        const SearchResult next = search(searched.text(), { word, options, false, end });
        if (next.verdict == SearchVerdict::Hit) {
            searched.put(int(next.start), int(next.start) + length);
        } else if (searched.text().isEmpty()) {
            answer(isJoystick ? u"No text in joystick file"_s : u"No text in macro file"_s,
                   { BoxButton::Ok });
        } else {
            answer(u"You found 'em all!"_s, { BoxButton::Ok });
        }
        press(u"Command5"_s);
    }
    window->close();
}

void RandomWalk::renameMacro()
{
    const QStringList names = editor->macros().list().model().allNames();
    const int index = upTo(qMax(0, int(names.size()) - 1));
    const QString name = u"N"_s + QString::number(++renames);
    const bool saves = oneIn(3);
    // A line that begins with "=" has a macro without a name.
    const bool isPossible = !names.value(index).isEmpty();
    if (isPossible) {
        model->rename(names[index], name);
        if (saves) {
            model->saveBoth();
            model->updateMacros();
        }
    }
    QTimer::singleShot(0, editor.get(), [&] {
        auto *form = qobject_cast<MacroRenameForm *>(QApplication::activeModalWidget());
        if (isPossible) {
            form->findChild<QListWidget *>(u"List1"_s)->setCurrentRow(index);
            form->findChild<QLineEdit *>(u"Text1"_s)->setText(name);
            form->findChild<QCheckBox *>(u"CheckAutoSave"_s)->setChecked(saves);
            form->findChild<QPushButton *>(u"cmdOK"_s)->click();
        }
        if (form->isVisible()) {
            form->reject();
        }
    });
    trigger(u"mnuRenameMacro");
}

const std::vector<RandomWalk::Action> RandomWalk::actions = {
    { "type keys", 14, &RandomWalk::typeKeys },
    { "type a word", 10, &RandomWalk::typeWord },
    { "type a strange letter", 1, &RandomWalk::typeStranger },
    { "move the caret", 8, &RandomWalk::moveCaret },
    { "place the caret", 6, &RandomWalk::placeCaret },
    { "select", 6, &RandomWalk::selectSome },
    { "select all", 1, &RandomWalk::selectAll },
    { "cut", 3, &RandomWalk::cut },
    { "copy", 3, &RandomWalk::copy },
    { "paste", 6, &RandomWalk::paste },
    { "delete", 3, &RandomWalk::remove },
    { "undo", 12, &RandomWalk::undo },
    { "redo", 7, &RandomWalk::redo },
    { "save", 6, &RandomWalk::save },
    { "save both", 2, &RandomWalk::saveBoth },
    { "save as", 2, &RandomWalk::saveAs },
    { "open", 3, &RandomWalk::openOne },
    { "open a pair", 2, &RandomWalk::openPair },
    { "open again", 2, &RandomWalk::reload },
    { "new", 1, &RandomWalk::makeFresh },
    { "change the file", 4, &RandomWalk::changeFile },
    { "autosave", 2, &RandomWalk::autosave },
    { "colour a file", 2, &RandomWalk::colourOne },
    { "colour both", 2, &RandomWalk::colourBoth },
    { "colour the line", 3, &RandomWalk::colourLine },
    { "remove colour", 2, &RandomWalk::removeColour },
    { "refresh layout", 1, &RandomWalk::refreshLayout },
    { "refresh indent", 1, &RandomWalk::refreshIndent },
    { "comment out", 3, &RandomWalk::putRems },
    { "comment in", 3, &RandomWalk::takeRems },
    { "align", 2, &RandomWalk::align },
    { "bold, italic, underline", 4, &RandomWalk::giveFlag },
    { "style", 4, &RandomWalk::giveStyle },
    { "insert a word", 4, &RandomWalk::insertWord },
    { "insert a heading", 1, &RandomWalk::insertHeading },
    { "insert a title", 1, &RandomWalk::insertTitle },
    { "insert Rem", 2, &RandomWalk::insertRem },
    { "replace", 4, &RandomWalk::replaceWords },
    { "rename a macro", 2, &RandomWalk::renameMacro },
    { "other tab", 6, &RandomWalk::otherTab },
    { "delete the undos", 1, &RandomWalk::deleteUndos },
    { "update macros", 1, &RandomWalk::updateMacros },
    { "drop", 2, &RandomWalk::drop },
    { "options", 1, &RandomWalk::changeOption },
};

void RandomWalk::compare()
{
    for (const DocumentKind kind : bothKinds) {
        const Document &is = editor->documents().of(kind);
        WalkModel::File &file = model->of(kind);
        const char *name = kind == DocumentKind::Joystick ? "joystick" : "macro";
        EXPECT_EQ(is.text().toStdString(), file.document.text().toStdString()) << name;
        EXPECT_EQ(is.richText(), file.document.now().richText()) << name;
        EXPECT_EQ(is.state(), file.document.state()) << name;
        EXPECT_EQ(is.path().toStdString(), file.path.toStdString()) << name;
        EXPECT_EQ(is.cursor().anchor(), file.document.anchor()) << name;
        EXPECT_EQ(is.cursor().position(), file.document.caret()) << name;
    }
    EXPECT_EQ(int(shown().kind()), int(document().kind()));
    EXPECT_EQ(editor->action(u"mnuEditUndo")->text().toStdString(),
              document().history().undoCaption().toStdString());
    EXPECT_EQ(editor->action(u"mnuEditRedo")->text().toStdString(),
              document().history().redoCaption().toStdString());
    EXPECT_EQ(dialogs.unexpected().join(u'\n').toStdString(), "");
    compareFiles();
}

void RandomWalk::compareFiles()
{
    const QStringList names = QDir(model->settings.folder).entryList(QDir::Files, QDir::Name);
    QStringList expected;
    for (auto file = model->files.cbegin(); file != model->files.cend(); ++file) {
        expected.append(file.key().section(u'/', -1));
        EXPECT_EQ(folder.read(u"Files/"_s + expected.back()), file.value())
            << file.key().toStdString();
    }
    EXPECT_EQ(names.join(u' ').toStdString(), expected.join(u' ').toStdString());
}

} // namespace

TEST_F(RandomWalk, TextStateAndDiskAreWhatTheModelSays)
{
    const quint32 seed = qEnvironmentVariableIsSet("ZEPH_WALK_SEED")
        ? qEnvironmentVariable("ZEPH_WALK_SEED").toUInt()
        : std::random_device()();
    chance = std::make_unique<RichTextMaker>(seed);
    QByteArrayList done;
    for (int step = 0; step < repeats(2000, 20000); ++step) {
        const bool isLong = document().text().size() > longest;
        const Action &action = chosenAction();
        done.append(isLong ? "cut" : action.name);
        isLong ? cutLong() : (this->*action.run)();
        comeBack();
        compare();
        if (HasFailure()) {
            FAIL() << "ZEPH_WALK_SEED=" << seed << ", action " << step
                   << ", after: " << done.mid(qMax(0, done.size() - 8)).join(", ").constData();
        }
    }
}
