// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "preferences/preferences_page.h"
#include "tests/support/shell_world.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

namespace zeph::test {

/// A page of Preferences with a list, driven by the names of its controls.
struct ListsPageTest : ShellWorld {
    std::unique_ptr<PreferencesPage> page;

    template <class T> T *find(const QString &name) const { return page->findChild<T *>(name); }
    QString text(const QString &field) const { return find<QLineEdit>(field)->text(); }
    bool isOn(const QString &tick) const { return find<QCheckBox>(tick)->isChecked(); }
    void type(const QString &field, const QString &typed) const
    {
        find<QLineEdit>(field)->setText(typed);
    }
    void press(const QString &button) const { find<QAbstractButton>(button)->click(); }
    /// What the toolkit tells when the caret leaves a field.
    void leave(const QString &field) const { Q_EMIT find<QLineEdit>(field)->editingFinished(); }
    static QStringList names(const QListWidget &list)
    {
        QStringList all;
        for (int i = 0; i < list.count(); ++i) {
            all.append(list.item(i)->text());
        }
        return all;
    }
    /// Each mnemonic stands once, and none is that of a tab.
    void checkMnemonics() const
    {
        QString seen = u"FCAVGOMD"_s;
        for (const QWidget *control : page->findChildren<QWidget *>()) {
            const auto *label = qobject_cast<const QLabel *>(control);
            const auto *button = qobject_cast<const QAbstractButton *>(control);
            const QString caption = button ? button->text() : label ? label->text() : QString();
            const qsizetype at = caption.indexOf(u'&');
            const bool wanted = button || (label && label->buddy());
            EXPECT_EQ(at >= 0, wanted) << caption.toStdString();
            if (at >= 0) {
                const QChar letter = caption[at + 1].toUpper();
                EXPECT_FALSE(seen.contains(letter)) << caption.toStdString();
                seen.append(letter);
            }
            EXPECT_TRUE(!button || !button->toolTip().isEmpty()) << caption.toStdString();
        }
    }
};

} // namespace zeph::test
