// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The reader's state, for the two files that make it: the machine and the words.

#include "platform/core/rtf.h"
#include "platform/core/rtf_code_pages.h"
#include "platform/core/rtf_lexer.h"
#include "platform/core/rtf_tables.h"

#include <QHash>
#include <QStringList>

namespace zeph::rtf {

/// What the text of a group is for.
enum class Destination : quint8 {
    Document,
    Fonts,
    Colours,
    Styles,
    Marker,
    BulletForm,
    Instruction, ///< what a field shows
    Skipped
};

/// The styles that words switch.
enum class Style { Bold, Italic, Underline, NoUnderline, Strike };

/// How characters look, by the numbers that the file gives; -1 where it has said nothing.
struct Look {
    int font = -1;
    int halfPoints = 0;
    int colour = -1;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    int link = -1; ///< index of the hyperlink

    friend bool operator==(const Look &, const Look &) = default;
    friend size_t qHash(const Look &look, size_t seed = 0)
    {
        const int styles = look.bold | look.italic << 1 | look.underline << 2 | look.strike << 3;
        return qHashMulti(seed, look.font, look.halfPoints, look.colour, styles, look.link);
    }
};

/// What a group restores at its end.
struct GroupState {
    Look look;
    int leftTwips = 0;
    int firstTwips = 0;
    int codePage = 1252;
    int unicodeFallback = 1; ///< characters after \uN that older readers show for it
    ParagraphAlignment alignment = ParagraphAlignment::Left;
    bool bullet = false;
    Destination destination = Destination::Document;

    ParagraphFormat paragraphFormat() const;
};

/// Reads one input, once. Groups are kept on a stack of its own, so that their depth is bounded by
/// a number and not by the thread's stack.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes);

    /// See readRtfWithLosses().
    Expected<RtfReading, RtfError> read(const std::function<bool(qsizetype)> &goOn);

    // What the words do; the table of words names these.
    using Handler = void (Reader::*)(int argument, const Token &token);
    void putCharacter(int character, const Token &);
    void endParagraph(int isHard, const Token &);
    void setStyle(int style, const Token &token);
    void setFont(int, const Token &token);
    void setFontSize(int, const Token &token);
    void setColour(int, const Token &token);
    void resetLook(int, const Token &);
    void resetParagraph(int, const Token &);
    void setIndent(int isFirst, const Token &token);
    void setAlignment(int alignment, const Token &);
    void putUnicode(int, const Token &token);
    void setUnicodeFallback(int, const Token &token);
    void setDocumentCodePage(int codePage, const Token &token);
    void setDefaultFont(int, const Token &token);
    void setCharset(int, const Token &token);
    void setFontCodePage(int, const Token &token);
    void setColourPart(int shift, const Token &token);
    void setBulletForm(int, const Token &);
    void enter(int destination, const Token &);

private:
    GroupState &state() { return m_groups.back(); }

    bool openGroup();
    void closeGroup();
    void handle(const Token &token);
    void handleWord(const Token &token);
    void handleSymbol(char symbol);
    bool stepOverFallback(Token &token);
    NumberedRichText finish();

    void putText(std::string_view bytes);
    void putByte(int byte);
    void putCharacters(QStringView characters);
    void putInFont(std::string_view bytes);
    void flushBytes();
    const HighHalf *highHalf();
    /// The text that characters go into now, or null where nobody wants them.
    QString *target(qsizetype added);

    void useCodePageOf(int font);
    void finishMarker();
    void finishInstruction();
    CharFormat formatOf(const Look &look) const;

    Lexer m_lexer;
    std::vector<GroupState> m_groups;
    NumberedRichText m_result;
    QByteArray m_bytes; ///< of a code page that may need two for a character, not yet decoded
    int m_toStepOver = 0; ///< characters left that older readers show for a \uN
    bool m_starred = false; ///< right after \*

    FontTable m_fonts;
    ColourTable m_colours;
    int m_documentCodePage = 1252;
    int m_defaultFont = 0;

    QString m_marker;
    bool m_isBulletForm = false;
    QString m_instruction;
    QStringList m_links;
    RtfLosses m_losses;

    std::optional<Look> m_firstStyle;
    LookNumbers m_looks;
    QHash<Look, quint32> m_numbers; ///< in m_looks; emptied before a table changes
    Look m_runLook; ///< of the last run
    const HighHalf *m_highHalf = nullptr;
    int m_highHalfOf = 0;
    ParagraphFormat m_textParagraph; ///< at the last text of the open paragraph
    bool m_paragraphHasText = false;
    bool m_paragraphHasBullet = false; ///< its own marker has been read
    bool m_endsWithParagraph = false; ///< nothing came after the last \par
};

struct Word {
    std::string_view name;
    Reader::Handler handler; ///< null for a word that only says of something lost that it is there
    int argument = 0;
    bool isDestination = false;
    RtfLosses loss = {};
    int usual = 0; ///< a number with which nothing is lost, beside 0
};

/// The word of that name, or null for one that is passed over.
const Word *findWord(std::string_view name);

} // namespace zeph::rtf
