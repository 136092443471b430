// The container templates CArray, CList and CMap.
//
// Differences from MFC: elements are moved by their constructors, never as raw bytes, so any C++ type may be
// contained. Block sizes are accepted and ignored: every list node and map entry is allocated alone. A bad
// index or a negative size throws CInvalidArgException in every build. A change whose allocation fails leaves
// the container as it was.
#pragma once

#include "afx.h"

#include "afxtempl_array.h"
#include "afxtempl_list.h"
#include "afxtempl_map.h"
