#include "MessageSpy.h"

#include <map>
#include <sstream>

namespace kivtest {

namespace {

struct WatchEntry
{
    MessageSpy* pSpy;
    WNDPROC pfnOld;
};

// Window procedures carry no context: the spied windows are found here.
std::map<HWND, WatchEntry>& Watches()
{
    static std::map<HWND, WatchEntry> watches;
    return watches;
}

}  // namespace

MessageSpy::MessageSpy() = default;

MessageSpy::~MessageSpy()
{
    std::vector<HWND> watched = m_watched;
    for (HWND hWnd : watched)
        Unwatch(hWnd);
}

void MessageSpy::Watch(HWND hWnd)
{
    WNDPROC pfnOld = (WNDPROC)::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)SpyProc);
    Watches()[hWnd] = {this, pfnOld};
    m_watched.push_back(hWnd);
}

void MessageSpy::Unwatch(HWND hWnd)
{
    auto it = Watches().find(hWnd);
    if (it == Watches().end() || it->second.pSpy != this)
        return;
    // Someone who subclassed over the spy keeps calling it: it then only passes messages on.
    if (::IsWindow(hWnd) && (WNDPROC)::GetWindowLongPtrA(hWnd, GWLP_WNDPROC) == SpyProc)
    {
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)it->second.pfnOld);
        Watches().erase(it);
    }
    else
    {
        it->second.pSpy = nullptr;
    }
    std::erase(m_watched, hWnd);
}

LRESULT CALLBACK MessageSpy::SpyProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto it = Watches().find(hWnd);
    if (it == Watches().end())
        return ::DefWindowProcA(hWnd, message, wParam, lParam);
    WatchEntry watch = it->second;
    if (watch.pSpy != nullptr)
        watch.pSpy->Record(hWnd, message, wParam, lParam);
    if (message == WM_NCDESTROY)
    {
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, (LONG_PTR)watch.pfnOld);
        Watches().erase(hWnd);
        if (watch.pSpy != nullptr)
            std::erase(watch.pSpy->m_watched, hWnd);
    }
    return ::CallWindowProcA(watch.pfnOld, hWnd, message, wParam, lParam);
}

void MessageSpy::Record(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_only.empty() && !m_only.count(message))
        return;
    if (m_ignore.count(message))
        return;
    m_messages.push_back({hWnd, message, wParam, lParam, false});
    if (m_text.count(message) && lParam != 0)
        m_messages.back().text = reinterpret_cast<const char*>(lParam);
}

void MessageSpy::Mark(UINT id)
{
    m_messages.push_back({nullptr, id, 0, 0, true});
}

std::vector<UINT> MessageSpy::MessageIds() const
{
    std::vector<UINT> ids;
    for (const SpyMessage& m : m_messages)
        if (!m.marker)
            ids.push_back(m.message);
    return ids;
}

int MessageSpy::Count(UINT message) const
{
    int n = 0;
    for (const SpyMessage& m : m_messages)
        n += (!m.marker && m.message == message) ? 1 : 0;
    return n;
}

namespace {

bool Same(const Expected& e, const SpyMessage& m)
{
    if (((e.flags & Expected::kMarker) != 0) != m.marker || e.message != m.message)
        return false;
    if ((e.flags & Expected::kWParam) && e.wParam != m.wParam)
        return false;
    return !(e.flags & Expected::kLParam) || e.lParam == m.lParam;
}

std::string Describe(const std::vector<SpyMessage>& messages)
{
    std::ostringstream out;
    for (const SpyMessage& m : messages)
    {
        if (m.marker)
            out << " | marker " << m.message << " |";
        else
            out << " 0x" << std::hex << m.message << "(" << m.wParam << "," << m.lParam << ")" << std::dec;
    }
    return out.str();
}

}  // namespace

::testing::AssertionResult MessageSpy::Matches(const std::vector<Expected>& expected) const
{
    size_t i = 0;
    for (size_t n = 0; n < expected.size(); ++n)
    {
        const Expected& e = expected[n];
        if (i < m_messages.size() && Same(e, m_messages[i]))
        {
            ++i;
            continue;
        }
        if (e.flags & Expected::kOptional)
            continue;
        return ::testing::AssertionFailure()
               << "expected entry " << n << " (0x" << std::hex << e.message << std::dec << ") not matched at position "
               << i << "; recorded:" << Describe(m_messages);
    }
    if (i != m_messages.size())
        return ::testing::AssertionFailure()
               << "unexpected messages from position " << i << "; recorded:" << Describe(m_messages);
    return ::testing::AssertionSuccess();
}

}  // namespace kivtest
