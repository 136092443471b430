// The options as the host sets them, the administrator's logon, locks, and the dialogs of the password.
#include "AllocationFault.h"
#include "RecordingHost.h"
#include "TestRegistry.h"
#include "WindowTestApp.h"

#include "editorcore/ResourceScope.h"
#include "lookup/InvalidCodeAction.h"
#include "lookup/LookupList.h"
#include "lookup/LookupOptionsMgr.h"
#include "lookup/LookupPasswordDlgs.h"
#include "lookup/LookupRegKey.h"
#include "lookup/RegistryKey.h"
#include "lookup/ScramblePassword.h"
#include "lookup/UGOrvaneLookupCellType.h"
#include "resources/ResourceIds.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

// The settings of all lookup fields.
class Settings : public CUGOrvaneLookupCellType {
public:
    static std::string Shown() {
        std::string all = "action=" + std::to_string(ms_InvalidCodeAction);
        all += ms_bValidateOnChar ? " onkey" : "";
        all += ms_bIsResolvingSubMenus ? " menus" : "";
        all += ms_bAllowPartialCodes ? " partial" : "";
        all += ms_bBeepOnInvalidCode ? " beep" : "";
        all += CLookupList::ms_bAllowPartial ? " list" : "";
        return all + " [" + ms_sReplaceString.GetString() + "] [" + ms_sPrependString.GetString() + "]";
    }
};

class LookupOptionsTest : public testing::Test {
protected:
    LookupOptionsTest() {
        CLookupRegKey::SetRootRegKey(m_registry.Root(), m_registry.Path());
        CLookupOptionsMgr::InitialSetAllOptions(&m_service);
        m_log.Take();
        TestApp().Answer({});
        TestApp().TakeBoxes();
    }
    ~LookupOptionsTest() override {
        CLookupRegKey::SetRootRegKey(nullptr, "");
        TestApp().m_whileUp = nullptr;
    }

    // The action that an index leads to at the start, and as an answer of the dialog.
    int ActionAtStart(bool validate, int index) {
        m_service.m_lookup.m_validate = validate;
        m_service.m_lookup.m_invalidAction = index;
        CLookupOptionsMgr::InitialSetAllOptions(&m_service);
        return Action();
    }
    int ActionOfDialog(bool validate, int index) {
        m_service.m_lookup.m_validate = validate;
        m_service.m_lookup.m_invalidAction = index;
        m_manager.OnUserOptions();
        return Action();
    }
    static int Action() {
        struct Open : CUGOrvaneLookupCellType {
            static int Get() { return ms_InvalidCodeAction; }
        };
        return Open::Get();
    }

    static void SetPassword(const char *text) {
        CString password(text);
        ScramblePassword(password);
        EXPECT_TRUE(CLookupRegKey().SetAdminPassword(password));
    }
    static std::string StoredPassword() {
        CString stored("none");
        CLookupRegKey().GetAdminPassword(stored);
        return stored.GetString();
    }
    static std::string Scrambled(const char *text) {
        CString password(text);
        ScramblePassword(password);
        return password.GetString();
    }
    // Types the password into the dialog that asks for the current one.
    static void Enter(HWND dialog, const char *password, int button = IDOK) {
        ::SetDlgItemTextA(dialog, IDC_LOOKUP_PASSWORD, password);
        ::SendMessageA(dialog, WM_COMMAND, button, 0);
    }
    static void EnterNew(HWND dialog, const char *password, const char *confirmed, int button = IDOK) {
        ::SetDlgItemTextA(dialog, IDC_LOOKUP_CONFIRM, confirmed);
        Enter(dialog, password, button);
    }
    static bool IsNewDialog(HWND dialog) { return ::GetDlgItem(dialog, IDC_LOOKUP_CONFIRM) != nullptr; }
    std::string State() { return m_manager.IsAdminLoggon() ? "on" : "off"; }

    TestRegistry m_registry;
    CallLog m_log;
    RecordingHost m_service{&m_log};
    HostWindow m_host;
    CLookupOptionsMgr m_manager;
};

// A host that keeps the user's options in the registry.
class RegistryHost : public RecordingHost {
public:
    using RecordingHost::RecordingHost;
    void GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                          bool *beepOnInvalid, int *invalidAction, CString *replaceString,
                          CString *prependString) override {
        RecordingHost::GetLookupOptions(validate, validateOnKey, resolveSubMenus, allowPartialCodes,
                                        beepOnInvalid, invalidAction, replaceString, prependString);
        CLookupRegKey().GetReplaceString(*replaceString);
    }
};

TEST_F(LookupOptionsTest, TheFieldsSettingsAreSetEachByItself) {
    struct Open : CUGOrvaneLookupCellType {
        static std::string Get() {
            return std::string(ms_bIsResolvingSubMenus ? "menus " : "- ") + (ms_bValidateOnChar ? "onkey" : "-");
        }
    };
    CUGOrvaneLookupCellType::SetResolvingSubMenus(true);
    CUGOrvaneLookupCellType::SetValidateOnChar(false);
    EXPECT_EQ("menus -", Open::Get());
    CUGOrvaneLookupCellType::SetResolvingSubMenus(false);
    CUGOrvaneLookupCellType::SetValidateOnChar(true);
    EXPECT_EQ("- onkey", Open::Get());
}

} // namespace

// --- Options

TEST_F(LookupOptionsTest, TheHostsOptionsAreTakenAndTheWidthsHandedBack) {
    m_service.m_lookup = {true, true, true, true, true, 1, "new", "pre", 0, 0};
    m_service.m_widths[1] = 33;
    CLookupOptionsMgr::InitialSetAllOptions(&m_service);
    EXPECT_EQ("GetLookupOptions GetWidths(10,10) SetWidths(10,33)", m_log.Take());
    EXPECT_EQ("action=2 onkey menus partial beep list [new] [pre]", Settings::Shown());
}

TEST_F(LookupOptionsTest, EachOptionGoesToItsOwnSetting) {
    const RecordedLookupOptions none{true, false, false, false, false, 0, "", "", 0, 0};
    const auto shown = [&](bool RecordedLookupOptions::*option) {
        m_service.m_lookup = none;
        m_service.m_lookup.*option = true;
        CLookupOptionsMgr::InitialSetAllOptions(&m_service);
        return Settings::Shown();
    };
    EXPECT_EQ("action=0 [] []", shown(&RecordedLookupOptions::m_validate));
    EXPECT_EQ("action=0 onkey [] []", shown(&RecordedLookupOptions::m_validateOnKey));
    EXPECT_EQ("action=0 menus [] []", shown(&RecordedLookupOptions::m_resolveSubMenus));
    EXPECT_EQ("action=0 partial list [] []", shown(&RecordedLookupOptions::m_allowPartialCodes));
    EXPECT_EQ("action=0 beep [] []", shown(&RecordedLookupOptions::m_beepOnInvalid));
}

TEST_F(LookupOptionsTest, AtStartIndexOneReplacesAndTwoPrepends) {
    EXPECT_EQ(kInvalidCodeReject, ActionAtStart(true, 0));
    EXPECT_EQ(kInvalidCodeReplace, ActionAtStart(true, 1));
    EXPECT_EQ(kInvalidCodePrepend, ActionAtStart(true, 2));
    EXPECT_EQ(kInvalidCodeReject, ActionAtStart(true, 3));
    EXPECT_EQ(kInvalidCodeNone, ActionAtStart(false, 1));
}

TEST_F(LookupOptionsTest, AfterTheDialogIndexOnePrependsAndTwoReplaces) {
    EXPECT_EQ(kInvalidCodeReject, ActionOfDialog(true, 0));
    EXPECT_EQ(kInvalidCodePrepend, ActionOfDialog(true, 1));
    EXPECT_EQ(kInvalidCodeReplace, ActionOfDialog(true, 2));
    EXPECT_EQ(kInvalidCodeReject, ActionOfDialog(true, 3));
    EXPECT_EQ(kInvalidCodeNone, ActionOfDialog(false, 2));
}

TEST_F(LookupOptionsTest, WhatTheUserChoosesHoldsAtOnce) {
    m_service.m_lookup = {true, true, false, true, false, 2, "new", "pre", 7, 40};
    m_manager.OnUserOptions();
    EXPECT_EQ("UserOptions SetWidths(7,40)", m_log.Take());
    EXPECT_EQ("action=2 onkey partial list [new] [pre]", Settings::Shown());
}

TEST_F(LookupOptionsTest, ACancelledDialogChangesNothing) {
    const std::string before = Settings::Shown();
    m_service.m_lookup = {false, true, true, true, true, 2, "new", "pre", 7, 40};
    m_service.m_lookupAnswer = false;
    m_manager.OnUserOptions();
    EXPECT_EQ("UserOptions", m_log.Take());
    EXPECT_EQ(before, Settings::Shown());
}

TEST_F(LookupOptionsTest, AReplaceStringInTheRegistryReachesTheFieldsOnlyThroughTheHost) {
    RegistryHost service(&m_log);
    CLookupOptionsMgr::InitialSetAllOptions(&service);
    EXPECT_TRUE(CLookupRegKey().SetReplaceString("unknown"));
    EXPECT_EQ("action=0 [] []", Settings::Shown());
    CLookupOptionsMgr::InitialSetAllOptions(&service);
    EXPECT_EQ("action=0 [unknown] []", Settings::Shown());
    CLookupOptionsMgr::InitialSetAllOptions(&m_service);
}

TEST_F(LookupOptionsTest, WithoutARootTheOptionsAreTakenAllTheSame) {
    CLookupRegKey::SetRootRegKey(nullptr, "");
    m_service.m_lookup.m_beepOnInvalid = true;
    CLookupOptionsMgr::InitialSetAllOptions(&m_service);
    EXPECT_EQ("action=0 beep [] []", Settings::Shown());
    m_manager.DoAdminLoggon();
    EXPECT_EQ("off", State()) << "there is nowhere to keep it";
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(LookupOptionsTest, TheAdminDialogGetsTheManager) {
    m_manager.OnAdminOptions();
    EXPECT_EQ("AdminOptions", m_log.Take());
    EXPECT_EQ(&m_manager, m_service.m_adminManager);
}

TEST_F(LookupOptionsTest, TheDefaultWidthsAreTheHosts) {
    UINT code = 1, description = 2;
    m_service.m_widths[0] = 8;
    m_manager.GetDefaultFieldWidths(&code, &description);
    EXPECT_EQ("GetWidths(1,2)", m_log.Take());
    EXPECT_EQ(8u, code);
    EXPECT_EQ(2u, description);
}

TEST_F(LookupOptionsTest, StrictModeAndLocksAreKeptInTheRegistry) {
    EXPECT_FALSE(m_manager.IsInStrictMode());
    EXPECT_TRUE(m_manager.SetStrictMode(true));
    EXPECT_TRUE(CLookupRegKey().IsInStrictMode());
    EXPECT_TRUE(m_manager.IsInStrictMode());
    EXPECT_TRUE(m_manager.SetLockAllFiles(true));
    EXPECT_TRUE(CLookupRegKey().IsLockingAllFiles());
    EXPECT_TRUE(m_manager.IsLockingAllFiles());
}

TEST_F(LookupOptionsTest, UnderLockAllEveryFileIsLockedAndNoneByName) {
    const char *file = "C:\\data\\staff.lk";
    EXPECT_FALSE(m_manager.IsFileLocked(file));
    m_manager.SetLockAllFiles(true);
    EXPECT_TRUE(m_manager.IsFileLocked(file));
    EXPECT_TRUE(m_manager.IsFileLocked("anything"));
    EXPECT_FALSE(m_manager.IsSingleFileLocked(file));
    m_manager.SetLockAllFiles(false);
    EXPECT_TRUE(m_manager.LockFile(file));
    EXPECT_TRUE(m_manager.IsFileLocked(file));
    EXPECT_TRUE(m_manager.IsSingleFileLocked(file));
    EXPECT_FALSE(m_manager.IsFileLocked("C:\\data\\other.lk"));
    EXPECT_TRUE(m_manager.UnLockFile(file));
    EXPECT_FALSE(m_manager.IsFileLocked(file));
}

TEST_F(LookupOptionsTest, TheRegistryHoldsTheTypesOfItsLayout) {
    CLookupRegKey().SetStrictMode(true);
    CLookupRegKey().SetAdminPassword("x");
    CLookupRegKey().LockLinks("C:\\data\\staff.lk");
    const auto type = [&](const char *key, const char *name) {
        DWORD found = REG_NONE, size = 0;
        ::RegGetValueA(m_registry.Root(), m_registry.Below(key), name, RRF_RT_ANY | RRF_NOEXPAND, &found,
                       nullptr, &size);
        return std::to_string(found) + ":" + std::to_string(size);
    };
    EXPECT_EQ("4:4", type("\\Admin", "Options")) << "REG_DWORD";
    EXPECT_EQ("1:2", type("\\Admin", "Passwrd")) << "REG_SZ";
    EXPECT_EQ("3:1", type("\\Lookup LinksC:\\data", "staff.lk")) << "REG_BINARY";
}

// --- Logon

// Other programs may leave out the closing null, or the whole text.
TEST_F(LookupOptionsTest, TextsWithoutAClosingNullAreReadWhole) {
    CLookupRegKey().SetReplaceString(""); // makes the key
    const auto stored = [&](DWORD length) {
        HKEY key = nullptr;
        ::RegOpenKeyExA(m_registry.Root(), m_registry.Below("\\User"), 0, KEY_SET_VALUE, &key);
        const CString text('x', static_cast<int>(length) + 1); // a null right behind would be stored with it
        ::RegSetValueExA(key, "Replace String", 0, REG_SZ, reinterpret_cast<const BYTE *>(text.GetString()), length);
        ::RegCloseKey(key);
        CString read("as it was");
        EXPECT_TRUE(CLookupRegKey().GetReplaceString(read));
        return read;
    };
    for (DWORD length : {0u, 1u, 7u, 8u, 300u})
        EXPECT_EQ(stored(length), CString('x', static_cast<int>(length))) << length;
}

TEST_F(LookupOptionsTest, OnAFreshRegistryAnyoneLogsOnWithoutADialog) {
    WithDialog act([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    m_manager.DoAdminLoggon();
    EXPECT_FALSE(act.Acted());
    EXPECT_EQ("on", State());
    EXPECT_EQ("", TestApp().TakeBoxes());
    m_manager.DoAdminLoggon();
    EXPECT_EQ("You are already logged on as Admin.|0", TestApp().TakeBoxes());
    m_manager.DoAdminLoggoff();
    EXPECT_FALSE(act.Acted());
    EXPECT_EQ("off", State());
    m_manager.DoAdminLoggoff();
    EXPECT_EQ("You are not currently logged on as Admin.|0", TestApp().TakeBoxes());
}

TEST_F(LookupOptionsTest, LoggingOnWithAPasswordAsksForIt) {
    SetPassword("secret");
    for (const char *wrong : {"Secret", "secre", ""}) {
        WithDialog act([&](HWND dialog) { Enter(dialog, wrong); });
        m_manager.DoAdminLoggon();
        EXPECT_TRUE(act.Acted());
        EXPECT_EQ("Incorrect password entered!|0", TestApp().TakeBoxes()) << wrong;
        EXPECT_EQ("off", State()) << wrong;
    }
    WithDialog act([](HWND dialog) { Enter(dialog, "secret"); });
    m_manager.DoAdminLoggon();
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("on", State());
}

TEST_F(LookupOptionsTest, ACancelledLogonEndsQuietly) {
    SetPassword("secret");
    WithDialog act([](HWND dialog) { Enter(dialog, "secret", IDCANCEL); });
    m_manager.DoAdminLoggon();
    EXPECT_TRUE(act.Acted());
    EXPECT_EQ("off", State());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(LookupOptionsTest, LoggingOffNeedsThePasswordToo) {
    SetPassword("secret");
    CLookupRegKey().SetAdminLoggonState(true);
    {
        WithDialog act([](HWND dialog) { Enter(dialog, "guess"); });
        m_manager.DoAdminLoggoff();
        EXPECT_EQ("Incorrect password entered!|0", TestApp().TakeBoxes());
        EXPECT_EQ("on", State());
    }
    {
        WithDialog act([](HWND dialog) { Enter(dialog, "secret", IDCANCEL); });
        m_manager.DoAdminLoggoff();
        EXPECT_EQ("", TestApp().TakeBoxes());
        EXPECT_EQ("on", State());
    }
    WithDialog act([](HWND dialog) { Enter(dialog, "secret"); });
    m_manager.DoAdminLoggoff();
    EXPECT_EQ("", TestApp().TakeBoxes());
    EXPECT_EQ("off", State());
}

// --- Setting the password

TEST_F(LookupOptionsTest, SettingThePasswordDoesNothingUnlessLoggedOn) {
    WithDialog act([](HWND dialog) { EnterNew(dialog, "new", "new"); });
    m_manager.OnSetAdminPassword();
    EXPECT_FALSE(act.Acted());
    EXPECT_EQ("none", StoredPassword());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(LookupOptionsTest, TheFirstPasswordIsSetWithoutAnOldOne) {
    m_manager.DoAdminLoggon();
    WithDialog act([](HWND dialog) { EnterNew(dialog, "new", "new"); });
    m_manager.OnSetAdminPassword();
    EXPECT_EQ("New password successfully set!|64", TestApp().TakeBoxes());
    EXPECT_EQ(Scrambled("new"), StoredPassword());
}

TEST_F(LookupOptionsTest, APasswordWhoseFormAZeroByteCutsIsRefused) {
    SetPassword("old");
    CLookupRegKey().SetAdminLoggonState(true);
    WithDialog act(
        [](HWND dialog) { IsNewDialog(dialog) ? EnterNew(dialog, "\x80" "uro", "\x80" "uro") : Enter(dialog, "old"); }, true);
    m_manager.OnSetAdminPassword();
    EXPECT_EQ("This password cannot be used, since its stored form would fit others too.\nPlease choose another.|0",
              TestApp().TakeBoxes());
    EXPECT_EQ(Scrambled("old"), StoredPassword());
}

TEST_F(LookupOptionsTest, TheOldPasswordIsAskedForFirst) {
    SetPassword("old");
    CLookupRegKey().SetAdminLoggonState(true);
    std::string seen;
    {
        WithDialog act(
            [&](HWND dialog) {
                seen += WindowText(dialog) + "|";
                Enter(dialog, "wrong");
            },
            true);
        m_manager.OnSetAdminPassword();
        EXPECT_EQ("Admin Password|", seen);
        EXPECT_EQ("Incorrect password entered!|0", TestApp().TakeBoxes());
        EXPECT_EQ(Scrambled("old"), StoredPassword());
    }
    WithDialog act(
        [&](HWND dialog) {
            seen += WindowText(dialog) + "|";
            if (IsNewDialog(dialog))
                EnterNew(dialog, "new", "new");
            else
                Enter(dialog, "old");
        },
        true);
    m_manager.OnSetAdminPassword();
    EXPECT_EQ("Admin Password|Admin Password|Lookup Admin Password|", seen);
    EXPECT_EQ("New password successfully set!|64", TestApp().TakeBoxes());
    EXPECT_EQ(Scrambled("new"), StoredPassword());
}

TEST_F(LookupOptionsTest, ACancelledNewPasswordIsNotSet) {
    m_manager.DoAdminLoggon();
    WithDialog act([](HWND dialog) { EnterNew(dialog, "new", "new", IDCANCEL); });
    m_manager.OnSetAdminPassword();
    EXPECT_TRUE(act.Acted());
    EXPECT_EQ("none", StoredPassword());
    EXPECT_EQ("", TestApp().TakeBoxes());
}

TEST_F(LookupOptionsTest, APasswordThatCannotBeStoredIsTold) {
    m_manager.DoAdminLoggon();
    WithDialog act([](HWND dialog) {
        CLookupRegKey::SetRootRegKey(nullptr, "");
        EnterNew(dialog, "new", "new");
    });
    m_manager.OnSetAdminPassword();
    EXPECT_EQ("Could not set password!|16", TestApp().TakeBoxes());
}

// --- The dialogs

TEST_F(LookupOptionsTest, TheDialogOfTheNewPassword) {
    const CResourceScope scope;
    CLookupAdminPasswordDlg dialog(8);
    std::string seen;
    WithDialog act([&](HWND window) {
        seen = WindowText(window) + "|" + WindowText(::GetDlgItem(window, IDOK)) + "|" +
               WindowText(::GetDlgItem(window, IDCANCEL));
        for (int id : {4001, 1034}) {
            const HWND edit = ::GetDlgItem(window, id);
            const HWND label = ::GetWindow(edit, GW_HWNDPREV);
            seen += "|" + WindowText(label) +
                    (::GetWindowLongA(edit, GWL_STYLE) & ES_PASSWORD ? " hidden " : " ") +
                    std::to_string(::SendMessageA(edit, EM_GETLIMITTEXT, 0, 0));
        }
        EXPECT_EQ(::GetDlgItem(window, 4001), ::GetFocus());
        ::SendMessageA(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(
        "Lookup Admin Password|&OK|&Cancel|Enter new password : hidden 8|Confirm new password : hidden 8",
        seen);
}

TEST_F(LookupOptionsTest, TheDialogOfTheOldPassword) {
    const CResourceScope scope;
    CLookupOldPasswordDlg dialog(8);
    std::string seen;
    WithDialog act([&](HWND window) {
        const HWND edit = ::GetDlgItem(window, 4001);
        seen = WindowText(window) + "|" + WindowText(::GetDlgItem(window, IDOK)) + "|" +
               WindowText(::GetDlgItem(window, IDCANCEL)) + "|" + WindowText(::GetWindow(edit, GW_HWNDPREV)) +
               (::GetWindowLongA(edit, GWL_STYLE) & ES_PASSWORD ? " hidden " : " ") +
               std::to_string(::SendMessageA(edit, EM_GETLIMITTEXT, 0, 0));
        TypeText(edit, "123456789");
        ::SendMessageA(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ("Admin Password|&OK|&Cancel|Enter the current Admin password : hidden 8", seen);
    EXPECT_STREQ("12345678", dialog.m_sPassword) << "the ninth character is not taken";
}

TEST_F(LookupOptionsTest, ANewPasswordMustBeTypedTwiceAlike) {
    const CResourceScope scope;
    CLookupAdminPasswordDlg dialog(8);
    std::string focus;
    WithDialog act([&](HWND window) {
        TestApp().m_whileUp = [&](const std::string &) {
            focus += std::to_string(::GetDlgCtrlID(::GetFocus())) + " ";
        };
        ::SetFocus(::GetDlgItem(window, IDCANCEL));
        EnterNew(window, "", "x");
        EnterNew(window, "x", "");
        ::SetFocus(::GetDlgItem(window, IDCANCEL));
        EnterNew(window, "x", "X");
        EnterNew(window, "", "");
        EXPECT_TRUE(::IsWindow(window));
        EnterNew(window, "x", "x");
    });
    EXPECT_EQ(IDOK, dialog.DoModal());
    EXPECT_EQ("Please enter a new password.|0\n"
              "Please confirm password.|0\n"
              "Confirmed password is not the same as new password!\nPlease re-enter.|0\n"
              "Please enter a new password.|0",
              TestApp().TakeBoxes());
    EXPECT_EQ("4001 1034 1034 4001 ", focus);
    EXPECT_STREQ("x", dialog.m_sPassword);
}

// --- Memory

// Every allocation from OK on fails once. What fails within the dialog leaves it up, to be answered again;
// what fails behind it ends the command.
TEST_F(LookupOptionsTest, AScrambleWithoutMemoryIsToldAndLogsNobodyOn) {
    SetPassword("secret");
    int told = 0;
    bool failed = true;
    for (long nth = 0; failed; ++nth) {
        ASSERT_LT(nth, 200);
        CLookupRegKey().SetAdminLoggonState(false);
        std::unique_ptr<AllocationFault> fault;
        WithDialog act(
            [&](HWND dialog) {
                ::SetDlgItemTextA(dialog, IDC_LOOKUP_PASSWORD, "secret");
                if (fault == nullptr)
                    fault = std::make_unique<AllocationFault>(nth);
                ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
            },
            true);
        m_manager.DoAdminLoggon();
        fault->Disarm();
        failed = fault->Failed();
        const bool toldNow = TestApp().TakeBoxes() == "Out of memory!|16";
        EXPECT_EQ(toldNow ? "off" : "on", State()) << nth;
        told += toldNow;
    }
    EXPECT_GT(told, 0);
}
