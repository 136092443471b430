// What happens to a code that is not in the lookup table, as it is stored, and how the index that a host
// keeps becomes one.
#pragma once

constexpr int kInvalidCodeReject = 0;  // the user is told and goes back to the cell
constexpr int kInvalidCodeNone = 1;    // validation is off for every table
constexpr int kInvalidCodeReplace = 2; // the text becomes the replace string
constexpr int kInvalidCodePrepend = 3; // the prepend string is put in front of the text

// The index of GetLookupOptions: 0 reject, 1 replace, 2 prepend; any other rejects.
constexpr int InvalidCodeActionAtStart(bool validate, int index) {
    if (!validate)
        return kInvalidCodeNone;
    return index == 1 ? kInvalidCodeReplace : index == 2 ? kInvalidCodePrepend : kInvalidCodeReject;
}

// The index of EditLookupUserOptions: 0 reject, 1 prepend, 2 replace. It is not the other one: hosts hand
// over what their dialog lists in this order.
constexpr int InvalidCodeActionOfDialog(bool validate, int index) {
    if (!validate)
        return kInvalidCodeNone;
    return index == 1 ? kInvalidCodePrepend : index == 2 ? kInvalidCodeReplace : kInvalidCodeReject;
}
