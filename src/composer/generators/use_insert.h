// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The statements of the page "Use / Misc.": what each of its buttons inserts, and how a statement
// goes back into the page's fields.

#include "composer/generators/generators.h"
#include "composer/generators/use_fields.h"

namespace zeph {

/// What a button inserts, from its own fields. The texts are written as they were typed.
Generated generateUse(UseInsert insert, const UseFields &fields);

/// What to ask, with Yes and No, before a button inserts; after No it inserts nothing. No value
/// when there is nothing to ask.
std::optional<Refusal> questionBeforeUse(UseInsert insert, const UseFields &fields);

struct UseReading {
    UseInsert insert;
    UseFields fields;
};
/// Puts what a statement tells into the fields of the button that inserts such a statement; all
/// other fields stay as shown. No value for a statement that the page cannot insert.
std::optional<UseReading> readUse(QStringView statement, const UseFields &shown = {});

} // namespace zeph
