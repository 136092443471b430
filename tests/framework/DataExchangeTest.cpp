#include "support.h"

namespace {

class ExchangeDialog : public CDialog {
public:
    ExchangeDialog() {}
    CString text;
    int number = 5;
    int check = 1;
    int radio = 1;
    int list = 1;
    CString combo = "red";
    int scroll = 0;
    CEdit edit;
    int changes = 0;

    BOOL OnInitDialog() override {
        CListBox *box = static_cast<CListBox *>(GetDlgItem(IDC_LIST));
        for (LPCTSTR item : {"a", "b", "c"})
            box->SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        SendDlgItemMessage(IDC_COMBO, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("red"));
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange *dx) override {
        DDX_Control(dx, IDC_TEXT, edit);
        DDX_Text(dx, IDC_TEXT, text);
        DDV_MaxChars(dx, text, 8);
        DDX_Text(dx, IDC_NUMBER, number);
        DDV_MinMaxInt(dx, number, 1, 10);
        DDX_Check(dx, IDC_CHECK, check);
        DDX_Radio(dx, IDC_RADIO1, radio);
        DDX_LBIndex(dx, IDC_LIST, list);
        DDX_CBString(dx, IDC_COMBO, combo);
        DDX_Scroll(dx, IDC_SCROLL, scroll);
    }
    afx_msg void OnChange() { changes++; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ExchangeDialog, CDialog)
ON_EN_CHANGE(IDC_TEXT, &ExchangeDialog::OnChange)
END_MESSAGE_MAP()

class DataExchange : public testing::Test {
protected:
    void SetUp() override {
        dialog.text = "hello";
        ASSERT_TRUE(dialog.Create(IDD_EXCHANGE, &parent));
        dialog.ShowWindow(SW_SHOW);
    }
    void TearDown() override { dialog.DestroyWindow(); }

    // What pressing OK would say about a number that was typed in.
    std::string Refusal(LPCTSTR typed) {
        dialog.SetDlgItemText(IDC_NUMBER, typed);
        return dialog.UpdateData(TRUE) ? "accepted" : TestApp::Get().TakeBoxes();
    }

    PlainWnd parent;
    ExchangeDialog dialog;
};

} // namespace

TEST_F(DataExchange, MembersAreShown) {
    CString text;
    dialog.GetDlgItemText(IDC_TEXT, text);
    EXPECT_STREQ(text, "hello");
    EXPECT_EQ(dialog.GetDlgItemInt(IDC_NUMBER), 5u);
    EXPECT_EQ(dialog.IsDlgButtonChecked(IDC_CHECK), 1u);
    EXPECT_EQ(dialog.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO2), IDC_RADIO2);
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LIST, LB_GETCURSEL), 1);
    dialog.GetDlgItemText(IDC_COMBO, text);
    EXPECT_STREQ(text, "red");
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(dialog.m_hWnd, IDC_TEXT)), &dialog.edit);
    EXPECT_EQ(dialog.changes, 0) << "the exchange's own changes are not reported";
    EXPECT_EQ(dialog.edit.GetLimitText(), 8u);
}

TEST_F(DataExchange, EntriesAreTaken) {
    dialog.SetDlgItemText(IDC_TEXT, "new");
    dialog.SetDlgItemText(IDC_NUMBER, " 7 ");
    dialog.CheckDlgButton(IDC_CHECK, 0);
    dialog.CheckRadioButton(IDC_RADIO1, IDC_RADIO2, IDC_RADIO1);
    dialog.SendDlgItemMessage(IDC_LIST, LB_SETCURSEL, 2);
    dialog.SetDlgItemText(IDC_COMBO, "blue");
    EXPECT_EQ(dialog.changes, 1);
    ASSERT_TRUE(dialog.UpdateData());
    CString state;
    state.Format("%s %d %d %d %d %s", dialog.text, dialog.number, dialog.check, dialog.radio, dialog.list,
                 dialog.combo);
    EXPECT_STREQ(state, "new 7 0 0 2 blue");
}

TEST_F(DataExchange, NumbersThatAreNone) {
    for (LPCTSTR typed : {"", "x", "7x", "1 2", "99999999999", "1.5"})
        EXPECT_EQ(Refusal(typed), "Please enter an integer.") << typed;
    EXPECT_EQ(dialog.number, 5);
}

TEST_F(DataExchange, NumbersOutOfRange) {
    EXPECT_EQ(Refusal("11"), "Please enter an integer between 1 and 10.");
    EXPECT_EQ(Refusal("-3"), "Please enter an integer between 1 and 10.");
    EXPECT_EQ(Refusal("10"), "accepted");
}

TEST_F(DataExchange, RefusedEntryGetsTheFocusAndIsSelected) {
    dialog.GetDlgItem(IDOK)->SetFocus();
    Refusal("abc");
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog.m_hWnd, IDC_NUMBER));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_NUMBER, EM_GETSEL), MAKELONG(0, 3));
}

TEST_F(DataExchange, TooManyCharacters) {
    dialog.SetDlgItemText(IDC_TEXT, "123456789");
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_EQ(TestApp::Get().TakeBoxes(), "Please enter no more than 8 characters.");
}

namespace {

class NumberDialog : public CDialog {
public:
    std::function<void(CDataExchange *)> exchange;
    void DoDataExchange(CDataExchange *dx) override {
        if (exchange)
            exchange(dx);
    }
};

template <class T> std::string Taken(LPCTSTR typed) {
    NumberDialog dialog;
    dialog.Create(IDD_EXCHANGE);
    T value{};
    dialog.exchange = [&](CDataExchange *dx) { DDX_Text(dx, IDC_NUMBER, value); };
    dialog.SetDlgItemText(IDC_NUMBER, typed);
    const BOOL done = dialog.UpdateData();
    const std::string result = done ? std::to_string(value) : TestApp::Get().TakeBoxes();
    dialog.DestroyWindow();
    return result;
}

} // namespace

TEST(DataExchangeTypes, EachTypeHasItsMessage) {
    EXPECT_EQ(Taken<UINT>("4294967295"), "4294967295");
    EXPECT_EQ(Taken<UINT>("-1"), "Please enter a positive integer.");
    EXPECT_EQ(Taken<long>("-2147483648"), "-2147483648");
    EXPECT_EQ(Taken<DWORD>("17"), "17");
    EXPECT_EQ(Taken<BYTE>("256"), "Please enter an integer between 0 and 255.");
    EXPECT_EQ(Taken<double>("2.5"), "2.500000");
    EXPECT_EQ(Taken<double>("2,5"), "Please enter a number.");
    EXPECT_EQ(Taken<double>("nan"), "Please enter a number.");
    EXPECT_EQ(Taken<double>("1e999"), "Please enter a number.");
}

TEST(DataExchangeTypes, RangeOfNumbers) {
    NumberDialog dialog;
    dialog.Create(IDD_EXCHANGE);
    double value = 0;
    dialog.exchange = [&](CDataExchange *dx) {
        DDX_Text(dx, IDC_NUMBER, value);
        DDV_MinMaxDouble(dx, value, 0.5, 1.5);
    };
    dialog.SetDlgItemText(IDC_NUMBER, "2");
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_EQ(TestApp::Get().TakeBoxes(), "Please enter a number between 0.5 and 1.5.");
    dialog.DestroyWindow();
}
