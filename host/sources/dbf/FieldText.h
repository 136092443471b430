// A field's bytes as text for the user, and the user's text as a field's bytes.
#pragma once

#include "CodePage.h"
#include "Layout.h"
#include "MemoFile.h"

namespace dbf {

// The text of a field of `record`, in the display page. `memo` may be null: memo fields are empty then.
std::string fieldText(const Field &field, const std::uint8_t *record, const MemoFile *memo,
                      const TextTranslator &translator);

// The bytes, as many as the field is wide, that stand for `text`; refused with the field's name, the value
// and the reason when it does not fit. Only for fields that can be edited.
Result encodeField(const Field &field, std::string_view text, const TextTranslator &translator,
                   std::string &bytes);

} // namespace dbf
