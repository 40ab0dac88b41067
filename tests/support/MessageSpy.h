// Records the messages that windows receive, in order, and compares them with an expected
// sequence. Markers between the steps of a test separate what each step caused.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <string>
#include <vector>

namespace kivtest {

struct SpyMessage
{
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool marker;            // a step boundary; message holds the marker's number
    std::string text = {};  // lParam's narrow text, for the messages asked for by CaptureText
};

// One expected entry. Parameters are compared only when asked for.
struct Expected
{
    enum Flags : unsigned
    {
        kAny = 0,
        kWParam = 1,
        kLParam = 2,
        kOptional = 4,  // may be missing
        kMarker = 8,
    };
    UINT message;
    unsigned flags = kAny;
    WPARAM wParam = 0;
    LPARAM lParam = 0;

    static Expected Marker(UINT id) { return {id, kMarker, 0, 0}; }
};

class MessageSpy
{
public:
    MessageSpy();
    ~MessageSpy();

    // Subclasses the window: every message is recorded, then passed on unchanged.
    void Watch(HWND hWnd);
    void Unwatch(HWND hWnd);
    // Records only these messages (an empty list records all).
    void Only(std::initializer_list<UINT> messages) { m_only = messages; }
    void Ignore(std::initializer_list<UINT> messages) { m_ignore.insert(messages.begin(), messages.end()); }
    // For these messages lParam is read as a narrow string when they arrive (the spy is a
    // narrow window procedure, so a wide WM_SETTEXT reaches it converted).
    void CaptureText(std::initializer_list<UINT> messages) { m_text.insert(messages.begin(), messages.end()); }
    void Mark(UINT id);
    void Clear() { m_messages.clear(); }

    const std::vector<SpyMessage>& Messages() const { return m_messages; }
    // The recorded message numbers, markers left out.
    std::vector<UINT> MessageIds() const;
    int Count(UINT message) const;
    ::testing::AssertionResult Matches(const std::vector<Expected>& expected) const;

private:
    static LRESULT CALLBACK SpyProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    void Record(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    std::vector<SpyMessage> m_messages;
    std::set<UINT> m_only;
    std::set<UINT> m_ignore;
    std::set<UINT> m_text;
    std::vector<HWND> m_watched;
};

}  // namespace kivtest
