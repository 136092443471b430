#include "DisplayCodePage.h"

namespace dbf {

// No such setting here: the Western European page, the commonest one of the product's own platform.
int processCodePage() {
    return 1252;
}

} // namespace dbf
