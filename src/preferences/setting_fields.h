// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "preferences/preferences_keys.h"

#include <QList>

class QWidget;

namespace zeph {

/// The fields of a page that each edit one setting, found by the names that the table of keys has
/// for them. The page must hold all fields of its tab.
class SettingFields
{
public:
    SettingFields(const QWidget &page, PreferencesTab tab);

    /// Number fields show what will be taken of them as soon as they are left.
    void show(Settings &settings) const;
    /// Takes every field by its rule.
    void take(Settings &settings) const;

private:
    struct Field {
        const PreferencesKey &key;
        QWidget *control;
    };

    QList<Field> m_fields;
};

} // namespace zeph
