// The code page in which the process shows text.
#pragma once

namespace dbf {

// Number of the code page, such as 1252.
int processCodePage();

} // namespace dbf
