// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/package.h"

#include "platform/core/paths.h"
#include "platform/core/zip_names.h"

#include <QDir>

namespace zeph {

namespace {

// clang-format off
constexpr std::array<PackageRow, packageFiles> rows = { {
    { u"&Joystick file:", u"Joystick files (*.tmj)|*.tmj", u"Locate the joystick file" },
    { u"&Macro file:", u"Macro files (*.tmm)|*.tmm", u"Locate the macro file" },
    { u"&Graphical layout:", u"Graphical files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif", u"Locate the graphical layout" },
    { u"&Readme.txt:", u"Text files (*.txt,*.rtf)|*.txt;*.rtf", u"Locate the readme" },
    { u"Cali&bration profile:", u"Calibration profiles (*.tmc)|*.tmc", u"Locate the calibration profile" },
} };
// clang-format on

PackageRefusal noName()
{
    return { u"One snippet of information missing"_s,
             u"You haven't provided me with a name for the distribution folder to put your files "
             "into. I'd be honoured, nay delighted, if you would provide this for me."_s };
}

/// A file and its path inside the package.
Expected<PackagePlan::Copy, PackageRefusal> copyOf(const PackagePlan &plan, const QString &file)
{
    const QString from = existingPath(file);
    if (from.isEmpty() || !fileExists(from)) {
        return Unexpected<PackageRefusal>(
            { u"Can't find file"_s,
              u"There's a problem here, since I can't find "_s + file
                  + u" any more. Please locate it again, or empty its box."_s });
    }
    const QString to = plan.folder + nameOf(from);
    for (const PackagePlan::Copy &other : plan.copies) {
        if (other.to.compare(to, Qt::CaseInsensitive) == 0 && other.from != from) {
            return Unexpected<PackageRefusal>(
                { u"Two files of one name"_s,
                  other.from + u" and "_s + from
                      + u" have the same name, and only one of them would be in the package. "
                        "Please rename one of them first."_s });
        }
    }
    return PackagePlan::Copy{ from, to };
}

/// A path in the archiver's form.
QString word(const QString &path)
{
    QString native = QDir::toNativeSeparators(path);
    if (!native.contains(u' ')) {
        return native;
    }
    // A backslash before the closing quote would take the quote into the name.
    while (native.endsWith(QDir::separator())) {
        native.chop(1);
    }
    return u'"' + native + u'"';
}

} // namespace

std::span<const PackageRow> packageRows()
{
    return rows;
}

QString distributeFolder(const QString &appFolder)
{
    return withClosingSeparator(appFolder) + u"Distribute/"_s;
}

Expected<PackagePlan, PackageRefusal> planPackage(const PackageFields &fields,
                                                  const QString &appFolder)
{
    const QString name = fields.name.trimmed();
    if (name.isEmpty()) {
        return Unexpected<PackageRefusal>(noName());
    }
    if (const auto checked = checkFileName(name); !checked) {
        return Unexpected<PackageRefusal>(
            { u"That name won't do"_s,
              u"A folder can't be called "_s + name + u": "_s + checked.error() + u'.' });
    }
    PackagePlan plan;
    plan.folder = distributeFolder(appFolder) + name + u'/';
    plan.zip = plan.folder + name + u".zip"_s;
    for (const QString &file : fields.files) {
        if (file.trimmed().isEmpty()) {
            continue;
        }
        const auto copy = copyOf(plan, file.trimmed());
        if (!copy) {
            return Unexpected<PackageRefusal>(copy.error());
        }
        plan.copies.append(*copy);
    }
    return plan;
}

QString winZipPackArguments(const PackagePlan &plan)
{
    return u"-min -a "_s + word(plan.zip) + u' ' + word(plan.folder + u"*.*"_s);
}

QString winZipOpenArguments(const QString &zip, const QString &filesFolder)
{
    return u"-min -e "_s + word(zip) + u' ' + word(filesFolder);
}

} // namespace zeph
