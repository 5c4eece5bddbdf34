// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/vocabulary.h"

#include "language/forms.h"
#include "language/keys.h"
#include "language/word_map.h"

namespace zeph::language {

namespace {

class Vocabulary
{
public:
    Vocabulary()
    {
        add(controls(), ControlRole);
        add(axes(), AxisRole);
        add(axisGroups(), AxisGroupRole);
        add(hats(), HatRole);
        add(mouseAxes(), MouseAxisRole);
        add(keyNames(), KeyRole);
        add(modifierKeys(), ModifierKeyRole);
        add(statementKeywords(), StatementRole);
        for (const ColourWords &colour : colourWords())
            add(colour.words, KeywordRole);
        const auto calls = callForms();
        for (size_t index = 0; index < calls.size(); ++index)
            entry(calls[index].word, CallRole).call = qint16(index);
    }

    WordInfo info(QStringView word, size_t hash) const
    {
        const int at = m_index.value(word, hash);
        return at < 0 ? WordInfo{} : m_infos[size_t(at)];
    }

private:
    WordInfo &entry(QStringView word, Role role)
    {
        int at = m_index.value(word);
        if (at < 0) {
            at = int(m_infos.size());
            m_infos.emplace_back();
            m_index.insert(word, at);
        }
        WordInfo &info = m_infos[size_t(at)];
        info.roles = quint16(info.roles | role);
        return info;
    }

    void add(Words words, Role role)
    {
        for (const QStringView word : words)
            entry(word, role);
    }

    WordMap m_index;
    std::vector<WordInfo> m_infos;
};

} // namespace

WordInfo wordInfo(QStringView word, size_t hash)
{
    static const Vocabulary vocabulary;
    return vocabulary.info(word, hash);
}

WordInfo wordInfo(QStringView word)
{
    // Arguments come here whole, with all the brackets that may stand in them.
    constexpr qsizetype longerThanAnyWord = 64;
    return word.size() < longerThanAnyWord ? wordInfo(word, foldedHash(word)) : WordInfo{};
}

std::optional<int> flagNumber(QStringView word)
{
    if (word.size() < 2 || (word[0] != u'X' && word[0] != u'x')
        || (word[1] < u'0' || word[1] > u'9'))
        return {};
    return wholeNumber(word.sliced(1));
}

bool isDirectXButton(QStringView word)
{
    return word.size() > 2 && sameWord(word.first(2), u"DX") && wholeNumber(word.sliced(2));
}

} // namespace zeph::language
