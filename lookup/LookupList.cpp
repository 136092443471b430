#include "lookup/LookupList.h"

bool CLookupList::ms_bAllowPartial = false;
