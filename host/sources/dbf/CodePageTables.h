#pragma once

#include "CodePage.h"

#include <span>

namespace dbf {

std::span<const CodePage> codePageTables();

} // namespace dbf
