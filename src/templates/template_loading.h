// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "text/template_files.h"

#include <memory>
#include <optional>

class QTextDocument;
class QWidget;

namespace zeph {

/// An empty document for the Template Editor's text, whose characters are in the plain format
/// unless they say otherwise.
std::unique_ptr<QTextDocument> newTemplateDocument(const CharFormat &plain);

/// A file that was read, and the document that shows it.
struct LoadedTemplate {
    QString path; ///< as it really is on the disk
    TemplateFile file;
    std::unique_ptr<QTextDocument> document;
};

/// Reads a file. Asks before it opens a large one, shows how far it is when that takes long, and
/// tells when the file cannot be read. No value then, and when the user wants no more of it.
std::optional<LoadedTemplate> loadTemplate(const Context &context, QWidget *window,
                                           const QString &path, const CharFormat &plain);

/// How the lines of a document end that showed the file with these line ends and was edited since.
LineEnds lineEndsNow(const QTextDocument &document, LineEnds ends);

} // namespace zeph
