// Message map entries: one macro per handled message, each naming the handler signature
// that the dispatcher calls.
#pragma once

// Handler signatures known to the dispatcher.
enum AfxSig : UINT_PTR
{
    AfxSig_end = 0,
    AfxSig_v_v,          // void ()
    AfxSig_b_v,          // BOOL ()
    AfxSig_l_w_l,        // LRESULT (WPARAM, LPARAM)
    AfxSig_b_D,          // BOOL (CDC*)
    AfxSig_h_D_W_u,      // HBRUSH (CDC*, CWnd*, UINT)
    AfxSig_h_D_u,        // HBRUSH (CDC*, UINT), reflected
    AfxSig_l_p,          // LRESULT (CPoint)
    AfxSig_v_u_p,        // void (UINT, CPoint)
    AfxSig_v_W,          // void (CWnd*)
    AfxSig_v_b,          // void (BOOL)
    AfxSig_i_CREATE,     // int (LPCREATESTRUCT)
    AfxSig_v_u_i_i,      // void (UINT, int, int)
    AfxSig_v_i_DRAW,     // void (int, LPDRAWITEMSTRUCT)
    AfxSig_v_i_MEASURE,  // void (int, LPMEASUREITEMSTRUCT)
    AfxSig_v_DRAW,       // void (LPDRAWITEMSTRUCT), reflected
    AfxSig_v_MEASURE,    // void (LPMEASUREITEMSTRUCT), reflected
    AfxSig_v_up,         // void (UINT_PTR)
    AfxSig_b_W_u_u,      // BOOL (CWnd*, UINT, UINT)
    AfxSig_v_u_u_u,      // void (UINT, UINT, UINT)
    AfxSig_v_b_u,        // void (BOOL, UINT)
    AfxSig_v_M_u_b,      // void (CMenu*, UINT, BOOL)
    AfxSig_v_W_p,        // void (CWnd*, CPoint)
    AfxSig_v_MINMAX,     // void (MINMAXINFO*)
    AfxSig_v_u_l,        // void (UINT, LPARAM)
    AfxSig_v_POS,        // void (WINDOWPOS*)
    AfxSig_v_u_W_b,      // void (UINT, CWnd*, BOOL)
    AfxSig_v_W_W,        // void (CWnd*, CWnd*)
    AfxSig_u_v,          // UINT ()
    // command and notification handlers, reached through OnCmdMsg
    AfxSig_cmd_v,         // void ()
    AfxSig_cmd_b,         // BOOL ()
    AfxSig_cmd_range,     // void (UINT)
    AfxSig_cmd_ui,        // void (CCmdUI*)
    AfxSig_cmd_ui_range,  // void (CCmdUI*, UINT)
    AfxSig_notify_v,      // void (NMHDR*, LRESULT*)
    AfxSig_notify_b,      // BOOL (NMHDR*, LRESULT*)
    AfxSig_notify_range,  // void (UINT, NMHDR*, LRESULT*)
};

// Framework messages and notification codes.
#define WM_CTLCOLOR 0x0019
#define WM_REFLECT_BASE 0xBC00
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI ((UINT)(-1))

// Member pointers are kept in the table as one common type and cast back on dispatch.
#define AFX_WND_PMSG(type, fn) ((AFX_PMSG)(AFX_PMSGW)(static_cast<type>(fn)))
#define AFX_CMD_PMSG(type, fn) ((AFX_PMSG)(static_cast<type>(fn)))

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                               \
    virtual const AFX_MSGMAP* GetMessageMap() const override;

// The base map is reached through its function, so a base class may live in another module.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                                  \
    {                                                                                                                  \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap()                                                             \
    {                                                                                                                  \
        typedef theClass ThisClass;                                                                                    \
        typedef baseClass TheBaseClass;                                                                                \
        (void)sizeof(ThisClass);                                                                                       \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    {                                                                                                                  \
        0, 0, 0, 0, AfxSig_end, (AFX_PMSG) nullptr                                                                     \
    }                                                                                                                  \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};                      \
    return &messageMap;                                                                                                \
    }

// Window messages.
#define ON_WM_PAINT() {WM_PAINT, 0, 0, 0, AfxSig_v_v, AFX_WND_PMSG(void(CWnd::*)(), &ThisClass::OnPaint)},
#define ON_WM_DESTROY() {WM_DESTROY, 0, 0, 0, AfxSig_v_v, AFX_WND_PMSG(void(CWnd::*)(), &ThisClass::OnDestroy)},
#define ON_WM_NCDESTROY() {WM_NCDESTROY, 0, 0, 0, AfxSig_v_v, AFX_WND_PMSG(void(CWnd::*)(), &ThisClass::OnNcDestroy)},
#define ON_WM_CLOSE() {WM_CLOSE, 0, 0, 0, AfxSig_v_v, AFX_WND_PMSG(void(CWnd::*)(), &ThisClass::OnClose)},
#define ON_WM_CREATE()                                                                                                 \
    {WM_CREATE, 0, 0, 0, AfxSig_i_CREATE, AFX_WND_PMSG(int(CWnd::*)(LPCREATESTRUCT), &ThisClass::OnCreate)},
#define ON_WM_ERASEBKGND()                                                                                             \
    {WM_ERASEBKGND, 0, 0, 0, AfxSig_b_D, AFX_WND_PMSG(BOOL(CWnd::*)(CDC*), &ThisClass::OnEraseBkgnd)},
#define ON_WM_CTLCOLOR()                                                                                               \
    {WM_CTLCOLOR, 0, 0, 0, AfxSig_h_D_W_u, AFX_WND_PMSG(HBRUSH(CWnd::*)(CDC*, CWnd*, UINT), &ThisClass::OnCtlColor)},
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    {WM_CTLCOLOR + WM_REFLECT_BASE,                                                                                    \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_h_D_u,                                                                                                     \
     AFX_WND_PMSG(HBRUSH(CWnd::*)(CDC*, UINT), &ThisClass::CtlColor)},
#define ON_WM_NCHITTEST()                                                                                              \
    {WM_NCHITTEST, 0, 0, 0, AfxSig_l_p, AFX_WND_PMSG(LRESULT(CWnd::*)(CPoint), &ThisClass::OnNcHitTest)},
#define AFX_ON_MOUSE(msg, fn) {msg, 0, 0, 0, AfxSig_v_u_p, AFX_WND_PMSG(void(CWnd::*)(UINT, CPoint), &ThisClass::fn)},
#define ON_WM_MOUSEMOVE() AFX_ON_MOUSE(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_LBUTTONDOWN() AFX_ON_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_ON_MOUSE(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_ON_MOUSE(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_ON_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_ON_MOUSE(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_CAPTURECHANGED()                                                                                         \
    {WM_CAPTURECHANGED, 0, 0, 0, AfxSig_v_W, AFX_WND_PMSG(void(CWnd::*)(CWnd*), &ThisClass::OnCaptureChanged)},
#define ON_WM_SETFOCUS() {WM_SETFOCUS, 0, 0, 0, AfxSig_v_W, AFX_WND_PMSG(void(CWnd::*)(CWnd*), &ThisClass::OnSetFocus)},
#define ON_WM_KILLFOCUS()                                                                                              \
    {WM_KILLFOCUS, 0, 0, 0, AfxSig_v_W, AFX_WND_PMSG(void(CWnd::*)(CWnd*), &ThisClass::OnKillFocus)},
#define ON_WM_ENABLE() {WM_ENABLE, 0, 0, 0, AfxSig_v_b, AFX_WND_PMSG(void(CWnd::*)(BOOL), &ThisClass::OnEnable)},
#define ON_WM_SIZE()                                                                                                   \
    {WM_SIZE, 0, 0, 0, AfxSig_v_u_i_i, AFX_WND_PMSG(void(CWnd::*)(UINT, int, int), &ThisClass::OnSize)},
#define ON_WM_DRAWITEM()                                                                                               \
    {WM_DRAWITEM, 0, 0, 0, AfxSig_v_i_DRAW, AFX_WND_PMSG(void(CWnd::*)(int, LPDRAWITEMSTRUCT), &ThisClass::OnDrawItem)},
#define ON_WM_MEASUREITEM()                                                                                            \
    {WM_MEASUREITEM,                                                                                                   \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_v_i_MEASURE,                                                                                               \
     AFX_WND_PMSG(void(CWnd::*)(int, LPMEASUREITEMSTRUCT), &ThisClass::OnMeasureItem)},
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    {WM_DRAWITEM + WM_REFLECT_BASE,                                                                                    \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_v_DRAW,                                                                                                    \
     AFX_WND_PMSG(void(CWnd::*)(LPDRAWITEMSTRUCT), &ThisClass::DrawItem)},
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    {WM_MEASUREITEM + WM_REFLECT_BASE,                                                                                 \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_v_MEASURE,                                                                                                 \
     AFX_WND_PMSG(void(CWnd::*)(LPMEASUREITEMSTRUCT), &ThisClass::MeasureItem)},
#define ON_WM_TIMER() {WM_TIMER, 0, 0, 0, AfxSig_v_up, AFX_WND_PMSG(void(CWnd::*)(UINT_PTR), &ThisClass::OnTimer)},
#define ON_WM_SETCURSOR()                                                                                              \
    {WM_SETCURSOR, 0, 0, 0, AfxSig_b_W_u_u, AFX_WND_PMSG(BOOL(CWnd::*)(CWnd*, UINT, UINT), &ThisClass::OnSetCursor)},
#define ON_WM_KEYDOWN()                                                                                                \
    {WM_KEYDOWN, 0, 0, 0, AfxSig_v_u_u_u, AFX_WND_PMSG(void(CWnd::*)(UINT, UINT, UINT), &ThisClass::OnKeyDown)},
#define ON_WM_CHAR()                                                                                                   \
    {WM_CHAR, 0, 0, 0, AfxSig_v_u_u_u, AFX_WND_PMSG(void(CWnd::*)(UINT, UINT, UINT), &ThisClass::OnChar)},
#define ON_WM_SHOWWINDOW()                                                                                             \
    {WM_SHOWWINDOW, 0, 0, 0, AfxSig_v_b_u, AFX_WND_PMSG(void(CWnd::*)(BOOL, UINT), &ThisClass::OnShowWindow)},
#define ON_WM_INITMENUPOPUP()                                                                                          \
    {WM_INITMENUPOPUP,                                                                                                 \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_v_M_u_b,                                                                                                   \
     AFX_WND_PMSG(void(CWnd::*)(CMenu*, UINT, BOOL), &ThisClass::OnInitMenuPopup)},
#define ON_WM_CONTEXTMENU()                                                                                            \
    {WM_CONTEXTMENU, 0, 0, 0, AfxSig_v_W_p, AFX_WND_PMSG(void(CWnd::*)(CWnd*, CPoint), &ThisClass::OnContextMenu)},
#define ON_WM_GETMINMAXINFO()                                                                                          \
    {WM_GETMINMAXINFO, 0, 0, 0, AfxSig_v_MINMAX, AFX_WND_PMSG(void(CWnd::*)(MINMAXINFO*), &ThisClass::OnGetMinMaxInfo)},
#define ON_WM_SYSCOMMAND()                                                                                             \
    {WM_SYSCOMMAND, 0, 0, 0, AfxSig_v_u_l, AFX_WND_PMSG(void(CWnd::*)(UINT, LPARAM), &ThisClass::OnSysCommand)},
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    {WM_WINDOWPOSCHANGING,                                                                                             \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_v_POS,                                                                                                     \
     AFX_WND_PMSG(void(CWnd::*)(WINDOWPOS*), &ThisClass::OnWindowPosChanging)},
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    {WM_WINDOWPOSCHANGED,                                                                                              \
     0,                                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_v_POS,                                                                                                     \
     AFX_WND_PMSG(void(CWnd::*)(WINDOWPOS*), &ThisClass::OnWindowPosChanged)},
#define ON_WM_ACTIVATE()                                                                                               \
    {WM_ACTIVATE, 0, 0, 0, AfxSig_v_u_W_b, AFX_WND_PMSG(void(CWnd::*)(UINT, CWnd*, BOOL), &ThisClass::OnActivate)},
#define ON_WM_GETDLGCODE()                                                                                             \
    {WM_GETDLGCODE, 0, 0, 0, AfxSig_u_v, AFX_WND_PMSG(UINT(CWnd::*)(), &ThisClass::OnGetDlgCode)},

// Any message, handled as LRESULT (WPARAM, LPARAM). Handlers are named as &Class::Handler.
#define ON_MESSAGE(message, memberFxn)                                                                                 \
    {message, 0, 0, 0, AfxSig_l_w_l, AFX_WND_PMSG(LRESULT(CWnd::*)(WPARAM, LPARAM), memberFxn)},

// Commands and control notifications.
#define ON_COMMAND(id, memberFxn)                                                                                      \
    {WM_COMMAND, CN_COMMAND, (WORD)id, (WORD)id, AfxSig_cmd_v, AFX_CMD_PMSG(void(CCmdTarget::*)(), memberFxn)},
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    {WM_COMMAND,   CN_COMMAND,       (WORD)id,                                                                         \
     (WORD)idLast, AfxSig_cmd_range, AFX_CMD_PMSG(void(CCmdTarget::*)(UINT), memberFxn)},
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    {WM_COMMAND, CN_UPDATE_COMMAND_UI, (WORD)id,                                                                       \
     (WORD)id,   AfxSig_cmd_ui,        AFX_CMD_PMSG(void(CCmdTarget::*)(CCmdUI*), memberFxn)},
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    {WM_COMMAND + WM_REFLECT_BASE,                                                                                     \
     (WORD)CN_UPDATE_COMMAND_UI,                                                                                       \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_cmd_ui,                                                                                                    \
     AFX_CMD_PMSG(void(CCmdTarget::*)(CCmdUI*), memberFxn)},
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    {WM_COMMAND,   CN_UPDATE_COMMAND_UI, (WORD)id,                                                                     \
     (WORD)idLast, AfxSig_cmd_ui_range,  AFX_CMD_PMSG(void(CCmdTarget::*)(CCmdUI*, UINT), memberFxn)},
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    {WM_COMMAND, (WORD)wNotifyCode, (WORD)id, (WORD)id, AfxSig_cmd_v, AFX_CMD_PMSG(void(CCmdTarget::*)(), memberFxn)},
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    {WM_COMMAND + WM_REFLECT_BASE,                                                                                     \
     (WORD)wNotifyCode,                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_cmd_v,                                                                                                     \
     AFX_CMD_PMSG(void(CCmdTarget::*)(), memberFxn)},
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    {WM_COMMAND + WM_REFLECT_BASE,                                                                                     \
     (WORD)wNotifyCode,                                                                                                \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_cmd_b,                                                                                                     \
     AFX_CMD_PMSG(BOOL(CCmdTarget::*)(), memberFxn)},
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    {WM_NOTIFY, (WORD)(int)wNotifyCode, (WORD)id,                                                                      \
     (WORD)id,  AfxSig_notify_v,        AFX_CMD_PMSG(void(CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)},
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    {WM_NOTIFY,    (WORD)(int)wNotifyCode, (WORD)id,                                                                   \
     (WORD)idLast, AfxSig_notify_range,    AFX_CMD_PMSG(void(CCmdTarget::*)(UINT, NMHDR*, LRESULT*), memberFxn)},
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    {WM_NOTIFY + WM_REFLECT_BASE,                                                                                      \
     (WORD)(int)wNotifyCode,                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_notify_v,                                                                                                  \
     AFX_CMD_PMSG(void(CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)},
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    {WM_NOTIFY + WM_REFLECT_BASE,                                                                                      \
     (WORD)(int)wNotifyCode,                                                                                           \
     0,                                                                                                                \
     0,                                                                                                                \
     AfxSig_notify_b,                                                                                                  \
     AFX_CMD_PMSG(BOOL(CCmdTarget::*)(NMHDR*, LRESULT*), memberFxn)},
