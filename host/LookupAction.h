// What a host keeps of the action for an invalid code: an index in the order in which GetLookupOptions gives
// it.
//
// The library knows another order as well. GetLookupOptions has reject, replace, prepend,
// EditLookupUserOptions reject, prepend, replace. Handing over the latter after the dialog makes the user's
// choice mean the same now and at the next start.
#pragma once

namespace LookupAction {

constexpr int kReject = 0, kReplace = 1, kPrepend = 2;

// The kept index in the order of EditLookupUserOptions.
constexpr int ForDialog(int kept) {
    return kept == kReplace ? 2 : kept == kPrepend ? 1 : 0;
}

} // namespace LookupAction
