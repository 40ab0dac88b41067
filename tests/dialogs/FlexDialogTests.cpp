// CNSFlexDialog of kivflex64.dll, the base of mfcCDialog: its exports, OnOK applying the
// changes to the subject before it ends the dialog, and where its virtual functions sit.
#include "DialogsTest.h"

#include "ImageTables.h"
#include "ModalDriver.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace dialogs_tests {

using kivtest::ModalDriver;

namespace {

// A dialog on the sibling library's base: its edit box holds the data, the subject is noted
// when the changes are applied, and the changes can be refused.
class FlexDialog : public ::CNSFlexDialog
{
public:
    FlexDialog() : ::CNSFlexDialog(IDD_FLEX, nullptr, nullptr) {}
    using ::CNSFlexDialog::SetSubject;

    CString m_strText = "start";
    int m_nApplied = 0;
    void* m_pAppliedSubject = nullptr;
    BOOL m_bRefuse = FALSE;

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, IDC_EDIT, m_strText); }
    int OnApplyChanges(void* pSubject) override
    {
        ++m_nApplied;
        m_pAppliedSubject = pSubject;
        return m_bRefuse ? 0 : ::CNSFlexDialog::OnApplyChanges(pSubject);
    }
};

// The slot of a virtual function in its class's table, read from the representation of a
// pointer to it (in this compiler's ABI the slot's byte offset plus one).
template <class F> std::ptrdiff_t SlotOf(F pmf)
{
    struct
    {
        std::uintptr_t ptr;
        std::ptrdiff_t adj;
    } rep;
    static_assert(sizeof(rep) == sizeof(pmf));
    std::memcpy(&rep, &pmf, sizeof(rep));
    return (std::ptrdiff_t)((rep.ptr - 1) / sizeof(void*));
}

// Classes with one virtual function of their own, which takes the first slot after those of
// their base.
class AfterCDialog : public CDialog
{
public:
    virtual void First() {}
};

class AftermfcCDialog : public ::mfcCDialog
{
public:
    virtual void First() {}
};

void* Export(const char* lpszName)
{
    return reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("kivflex64.dll"), lpszName));
}

}  // namespace

TEST_F(CNSFlexDialog, IsExportedBySiblingLibraryAsTheBaseOfmfcCDialog)
{
    HMODULE hFlex = ::GetModuleHandleA("kivflex64.dll");
    ASSERT_NE(nullptr, hFlex);
    std::vector<std::string> names = kiv_test::ExportNames(hFlex);
    for (const char* name :
         {"_ZN13CNSFlexDialogC2EjP4CWndPv", "_ZN13CNSFlexDialogC2EPKcP4CWndPv", "_ZN13CNSFlexDialogC2Ev",
          "_ZN13CNSFlexDialogD2Ev", "_ZN13CNSFlexDialog12OnInitDialogEv", "_ZN13CNSFlexDialog4OnOKEv",
          "_ZN13CNSFlexDialog14OnApplyChangesEPv", "_ZN13CNSFlexDialog10SetSubjectEPv",
          "_ZN13CNSFlexDialog12GetThisClassEv", "_ZN13CNSFlexDialog17GetThisMessageMapEv", "_ZTV13CNSFlexDialog"})
        EXPECT_NE(names.end(), std::find(names.begin(), names.end(), name)) << name;
    EXPECT_EQ(RUNTIME_CLASS(::CNSFlexDialog), RUNTIME_CLASS(::mfcCDialog)->m_pfnGetBaseClass());
    EXPECT_EQ(RUNTIME_CLASS(CDialog), RUNTIME_CLASS(::CNSFlexDialog)->m_pfnGetBaseClass());
}

TEST_F(CNSFlexDialog, OnOKAppliesTheChangesToTheSubjectThenEndsTheDialog)
{
    FlexDialog dlg;
    int subject = 0;
    dlg.SetSubject(&subject);
    ModalDriver driver([](HWND hDlg) {
        ::SetDlgItemTextA(hDlg, IDC_EDIT, "changed");
        ModalDriver::Click(hDlg, IDOK);
    });
    EXPECT_EQ(IDOK, dlg.DoModal());
    EXPECT_EQ(1, dlg.m_nApplied);
    EXPECT_EQ(&subject, dlg.m_pAppliedSubject);
    EXPECT_STREQ("changed", dlg.m_strText);  // the base took the controls' data
}

TEST_F(CNSFlexDialog, OnOKKeepsTheDialogOpenWhenTheChangesAreRefused)
{
    FlexDialog dlg;
    dlg.m_bRefuse = TRUE;
    BOOL bOpenAfterOK = FALSE;
    ModalDriver driver([&](HWND hDlg) {
        ModalDriver::Click(hDlg, IDOK);
        bOpenAfterOK = ::IsWindowVisible(hDlg);
        ModalDriver::Click(hDlg, IDCANCEL);
    });
    EXPECT_EQ(IDCANCEL, dlg.DoModal());
    EXPECT_TRUE(bOpenAfterOK);
    EXPECT_EQ(1, dlg.m_nApplied);
    EXPECT_EQ(nullptr, dlg.m_pAppliedSubject);  // none was set
}

TEST_F(CNSFlexDialog, OnApplyChangesAndSetSubjectFollowCDialogsVirtualFunctions)
{
    std::ptrdiff_t first = SlotOf(&AfterCDialog::First);
    void** table = static_cast<void**>(Export("_ZTV13CNSFlexDialog")) + 2;  // past offset and type
    EXPECT_EQ(Export("_ZN13CNSFlexDialog14OnApplyChangesEPv"), table[first]);
    EXPECT_EQ(Export("_ZN13CNSFlexDialog10SetSubjectEPv"), table[first + 1]);
    EXPECT_EQ(Export("_ZN13CNSFlexDialog4OnOKEv"), table[SlotOf(&CDialog::OnOK)]);
    EXPECT_EQ(Export("_ZN13CNSFlexDialog12OnInitDialogEv"), table[SlotOf(&CDialog::OnInitDialog)]);
}

TEST_F(mfcCDialog, AddsNoVirtualFunctionOfItsOwn)
{
    EXPECT_EQ(SlotOf(&AfterCDialog::First) + 2, SlotOf(&AftermfcCDialog::First));
}

}  // namespace dialogs_tests
