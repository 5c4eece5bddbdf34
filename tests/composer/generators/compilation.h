// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What the Composer writes, as the stand-in compiler takes it.

#include "platform/core/profile_file.h"
#include "standin/compiler.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

namespace zeph::test {

/// A joystick file of many statements, which is compiled in one run.
class Compilation
{
public:
    Compilation() { m_folder.write(u"HOTAS/HOTAS.ini"_s, "[Defaults]\r\nMDEFrequired=1\r\n"); }

    /// The macro file of the joystick file's name.
    void setMacros(const QString &text) { m_folder.write(u"all.tmm"_s, text.toLatin1()); }

    /// Adds a statement, or a part of one with the lines before it that it needs.
    void add(const QString &statement)
    {
        m_lines.append(statement.split(u'\n'));
        ++m_count;
    }
    int count() const { return m_count; }

    /// Puts a macro file beside the joystick file, for a statement that names it.
    void addMacroFile(const QString &name) { m_folder.write(name, "Gun = x\r\n"); }

    /// What the compiler says of the first mistake, with its line; empty when it accepts the file.
    std::string verdict() const
    {
        const QString file =
            m_folder.write(u"all.tmj"_s, m_lines.join(u"\r\n"_s).toLatin1() + "\r\n");
        const QString hotas = m_folder.file(u"HOTAS/"_s);
        const int exitCode =
            standin::runCompiler({ u"/ZEPH"_s, u"/CO"_s, file }, hotas, {}).exitCode;
        const ProfileFile ini(hotas + u"HOTAS.ini"_s);
        const QString status = ini.text(u"Compiler"_s, u"Status"_s);
        if (exitCode == 0 && status == u"OK")
            return {};
        const int line = ini.integer(u"Compiler"_s, u"LineNumber"_s, 0);
        const QString told = status + u' ' + ini.text(u"Compiler"_s, u"ErrorCode"_s) + u": "_s
            + m_lines.value(line - 1);
        return told.toStdString();
    }

private:
    TempFolder m_folder;
    QStringList m_lines;
    int m_count = 0;
};

/// A test whose statements are all compiled when it has ended.
class CompiledTest : public testing::Test
{
protected:
    void TearDown() override
    {
        EXPECT_GT(compilation.count(), 0);
        EXPECT_EQ(compilation.verdict(), "");
    }

    Compilation compilation;
};

} // namespace zeph::test
