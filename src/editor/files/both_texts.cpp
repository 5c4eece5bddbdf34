// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/both_texts.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

namespace zeph {

namespace {

using Lines = QList<QStringView>;

/// How many lines ahead a line that was put in or taken out is looked for: long texts with many
/// differences are compared in time that grows with their length alone.
constexpr qsizetype farthest = 60;

constexpr int markAlpha = 80; // the text must be readable on the mark, light or dark

} // namespace

DifferentLines differentLines(QStringView ours, QStringView theirs)
{
    const Lines left = ours.split(u'\n');
    const Lines right = theirs.split(u'\n');
    DifferentLines result{ std::vector<bool>(size_t(left.size()), true),
                           std::vector<bool>(size_t(right.size()), true) };
    qsizetype leftEnd = left.size();
    qsizetype rightEnd = right.size();
    while (leftEnd > 0 && rightEnd > 0 && left[leftEnd - 1] == right[rightEnd - 1]) {
        result.ours[size_t(--leftEnd)] = false;
        result.theirs[size_t(--rightEnd)] = false;
    }
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < leftEnd && j < rightEnd) {
        if (left[i] == right[j]) {
            result.ours[size_t(i++)] = false;
            result.theirs[size_t(j++)] = false;
            continue;
        }
        // The nearest place where both go on alike.
        bool isFound = false;
        for (qsizetype ahead = 1; ahead < farthest && !isFound; ++ahead) {
            for (qsizetype skipped = 0; skipped <= ahead && !isFound; ++skipped) {
                const qsizetype a = i + skipped;
                const qsizetype b = j + ahead - skipped;
                if (a < leftEnd && b < rightEnd && left[a] == right[b]) {
                    i = a;
                    j = b;
                    isFound = true;
                }
            }
        }
        if (!isFound) {
            ++i;
            ++j;
        }
    }
    return result;
}

BothTexts::BothTexts(const QString &name, const QString &ours, const QString &theirs,
                     QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"BothTexts"_s);
    setWindowTitle(name + u": ours and the disk's"_s);
    const DifferentLines lines = differentLines(ours, theirs);
    auto *our = makeText(u"OurText"_s, ours, lines.ours);
    auto *their = makeText(u"DiskText"_s, theirs, lines.theirs);
    for (const auto &[one, other] : { std::pair(our, their), std::pair(their, our) }) {
        connect(one->verticalScrollBar(), &QScrollBar::valueChanged, other->verticalScrollBar(),
                &QScrollBar::setValue);
    }
    auto *ourLabel = new QLabel(u"&Our text, in the Editor:"_s);
    ourLabel->setBuddy(our);
    auto *theirLabel = new QLabel(u"&The disk's text, by another program:"_s);
    theirLabel->setBuddy(their);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QGridLayout(this);
    layout->addWidget(ourLabel, 0, 0);
    layout->addWidget(theirLabel, 0, 1);
    layout->addWidget(our, 1, 0);
    layout->addWidget(their, 1, 1);
    layout->addWidget(buttons, 2, 0, 1, 2);
    resize(760, 480);
}

QPlainTextEdit *BothTexts::makeText(const QString &objectName, const QString &text,
                                    const std::vector<bool> &marked)
{
    auto *edit = new QPlainTextEdit(text);
    edit->setObjectName(objectName);
    edit->setReadOnly(true);
    edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit->setTabChangesFocus(true);
    edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QColor colour = palette().color(QPalette::Highlight);
    colour.setAlpha(markAlpha);
    QList<QTextEdit::ExtraSelection> marks;
    for (QTextBlock line = edit->document()->begin(); line.isValid(); line = line.next()) {
        if (marked[size_t(line.blockNumber())]) {
            QTextEdit::ExtraSelection mark;
            mark.cursor = QTextCursor(line);
            mark.format.setProperty(QTextFormat::FullWidthSelection, true);
            mark.format.setBackground(colour);
            marks.append(mark);
        }
    }
    edit->setExtraSelections(marks);
    return edit;
}

} // namespace zeph
