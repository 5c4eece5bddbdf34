// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/use_lists.h"

#include "platform/core/paths.h"

namespace zeph {

QString browsedText(const UseBrowse &browse, const QString &path)
{
    return browse.wholePath ? nativeSeparators(path) : nameOf(path);
}

void ProfileList::UpdateProfiles(const QStringList &names)
{
    m_names = names;
    m_index = names.isEmpty() ? -1 : 0;
}

bool ProfileList::select(QStringView name)
{
    for (int index = 0; index < m_names.size(); ++index) {
        if (m_names[index].compare(name, Qt::CaseInsensitive) == 0) {
            m_index = index;
            return true;
        }
    }
    return false;
}

} // namespace zeph
