// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "templates/template_loading.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/dialogs.h"
#include "platform/long_progress.h"
#include "platform/richtext/rich_text_document.h"

#include <QFileInfo>
#include <QTextBlock>
#include <QTextDocument>

namespace zeph {

namespace {

constexpr double margin = 12;

// Of the whole time, in the steps of the progress: to understand the file, and to fill the
// document.
constexpr int readingSteps = 30;
constexpr int fillingSteps = 70;

int share(qsizetype done, qsizetype all, int steps)
{
    return all > 0 ? int(double(done) / double(all) * steps) : steps;
}

bool mayOpen(Dialogs &dialogs, const QString &path)
{
    constexpr qint64 megabyte = 1'000'000;
    const qint64 size = QFileInfo(path).size();
    return size <= largeTemplate
        || dialogs.ask(
            u"That's a big one"_s,
            u"%1 has %2 MB. Opening it may take a while. Shall I go on?"_s.arg(nameOf(path))
                .arg(size / megabyte));
}

/// Lines that end otherwise than most carry that with them while the others are edited.
void markLineEnds(QTextDocument &document, const LineEnds &ends)
{
    QTextBlock block = document.begin();
    for (const LineEnd end : ends.each) {
        block.setUserState(int(end));
        block = block.next();
    }
}

} // namespace

std::unique_ptr<QTextDocument> newTemplateDocument(const CharFormat &plain)
{
    auto document = std::make_unique<QTextDocument>();
    document->setDefaultFont(toTextFormat(plain).font());
    document->setDocumentMargin(margin);
    document->setIndentWidth(bulletIndentPixels);
    return document;
}

std::optional<LoadedTemplate> loadTemplate(const Context &context, QWidget *window,
                                           const QString &path, const CharFormat &plain)
{
    const QString found = existingPath(path);
    if (!mayOpen(context.dialogs, found)) {
        return std::nullopt;
    }
    const QString name = nameOf(path);
    LongProgress progress(u"Opening a file"_s, window);
    bool goesOn = true;
    const auto step = [&](int done) {
        goesOn = goesOn && progress.step(name, done, readingSteps + fillingSteps);
        return goesOn;
    };
    const auto bytes = readWholeFile(found.isEmpty() ? path : found);
    auto file = bytes ? readTemplate(
                    path, *bytes, plain,
                    [&](qsizetype done) { return step(share(done, bytes->size(), readingSteps)); })
                      : Unexpected<QString>(bytes.error().reason);
    if (!file) {
        progress.finish();
        if (goesOn) {
            context.dialogs.tell(u"Can't read file"_s, path + u" wasn't opened: "_s + file.error(),
                                 BoxIcon::Exclamation);
        }
        return std::nullopt;
    }
    auto document = newTemplateDocument(plain);
    const qsizetype length = file->text.text.size();
    if (!fillDocument(*document, file->text, [&](qsizetype done) {
            return step(readingSteps + share(done, length, fillingSteps));
        })) {
        return std::nullopt;
    }
    markLineEnds(*document, file->lineEnds);
    return LoadedTemplate{ found, std::move(*file), std::move(document) };
}

LineEnds lineEndsNow(const QTextDocument &document, LineEnds ends)
{
    if (ends.each.empty()) {
        return ends;
    }
    ends.each.clear();
    for (QTextBlock block = document.begin(); block != document.lastBlock(); block = block.next()) {
        const int end = block.userState();
        ends.each.push_back(end < 0 ? ends.usual : LineEnd(end));
    }
    return ends;
}

} // namespace zeph
