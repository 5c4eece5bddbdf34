// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/compilerhelp.h"

#include "language/error_codes.h"
#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/rtf.h"
#include "platform/core/text_search.h"
#include "platform/dialogs.h"
#include "platform/tool_windows.h"
#include "toolchain/tool_scene.h"
#include "ui_compilerhelp.h"

#include <QSignalBlocker>
#include <QTextCursor>
#include <algorithm>

namespace zeph {

CompilerHelp::CompilerHelp(const QString &errorCodesPath, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CompilerHelp>())
{
    m_ui->setupUi(this);
    connect(m_ui->FontSize, &QSpinBox::valueChanged, this, &CompilerHelp::setFontSize);
    connect(m_ui->CMD_ShowLine, &QPushButton::clicked, this,
            [this] { Q_EMIT highlightRequested(m_error); });
    connect(m_ui->CMD_Help, &QPushButton::clicked, this, &CompilerHelp::helpRequested);
    connect(m_ui->CMD_Close, &QPushButton::clicked, this, &QWidget::close);
    load(errorCodesPath);
}

CompilerHelp::~CompilerHelp() = default;

void CompilerHelp::load(const QString &path)
{
    m_ui->RichTextCodes->clear();
    const auto codes = readErrorCodes(path);
    m_ui->RichTextCodes->setRichText(
        codes ? *codes
              : RichText::plain(u"The explanations could not be read.\n\n"_s + codes.error()));
    const double size = codes ? codes->formatAt(0).pointSize : 0;
    const QSignalBlocker quiet(m_ui->FontSize);
    m_ui->FontSize->setValue(qRound(size > 0 ? size : m_ui->RichTextCodes->font().pointSizeF()));
}

void CompilerHelp::setFontSize(int points)
{
    QTextCursor all(m_ui->RichTextCodes->document());
    all.select(QTextCursor::Document);
    QTextCharFormat size;
    size.setFontPointSize(points);
    all.mergeCharFormat(size);
    // The new size of the lines above the entry has moved it.
    m_ui->RichTextCodes->scrollTo(m_ui->RichTextCodes->selStart());
}

void CompilerHelp::ShowTheError(const CompilerError &error)
{
    m_error = error;
    m_ui->LabelFile->setText(u"File: "_s + error.file().name);
    m_ui->LabelLine->setText(u"Line: "_s + QString::number(error.line));
    m_ui->LabelError->setText(u"Error: "_s + error.text);
    m_ui->CMD_ShowLine->setEnabled(error.line != 0);

    auto *codes = m_ui->RichTextCodes;
    const auto entry = findErrorEntry(codes->toPlainText(), error.text);
    if (!entry) {
        codes->select(0, 0);
        codes->scrollTo(0);
        return;
    }
    codes->select(int(entry->entryStart), int(entry->entryEnd - entry->entryStart));
    codes->scrollTo(int(entry->entryStart));
    codes->select(int(entry->entryStart), int(entry->headingEnd - entry->entryStart));
}

void addCompilerHelp(ToolWindows &windows, const Context &context, ToolScene &scene)
{
    windows.offer<CompilerHelp>([context, &scene](QWidget *owner) {
        auto *help = new CompilerHelp(context.paths.infoFolder() + u"Error codes.rtf"_s, owner);
        QObject::connect(help, &CompilerHelp::highlightRequested, help,
                         guarded(context.dialogs, [&scene](const CompilerError &error) {
                             scene.HighlightErrorLine(error);
                         }));
        QObject::connect(help, &CompilerHelp::helpRequested, help,
                         guarded(context.dialogs, [&scene] { scene.showHelpOnErrors(); }));
        return help;
    });
}

namespace {

/// A search for the next entry starts here, so that it does not find the entry's own first word.
constexpr qsizetype afterOwnWord = language::errorWord.size();

} // namespace

std::optional<ErrorPassage> findErrorEntry(QStringView text, QStringView errorText)
{
    const qsizetype start =
        findText(text, errorText.left(language::errorHeadingLength), 0, SearchPlain);
    if (start < 0) {
        return std::nullopt;
    }
    const qsizetype after = std::min(start + afterOwnWord, text.size());
    const qsizetype next = findText(text, language::errorWord, after, SearchMatchCase);
    const qsizetype lineEnd = text.indexOf(u'\n', after);
    return ErrorPassage{
        start,
        next < 0 ? text.size() : next,
        lineEnd < 0 ? std::min(start + errorText.size(), text.size()) : lineEnd,
    };
}

Expected<RichText, QString> readErrorCodes(const QString &path)
{
    const QString onDisk = existingPath(path);
    const auto bytes = readWholeFile(onDisk.isEmpty() ? path : onDisk);
    if (!bytes) {
        return Unexpected<QString>(bytes.error().path + u"\n\n"_s + bytes.error().reason);
    }
    auto text = readRtf(*bytes);
    if (!text) {
        return Unexpected<QString>(onDisk + u"\n\n"_s + text.error().reason);
    }
    return std::move(*text);
}

} // namespace zeph
