// Any sequence of moves, releases and cancels, with an Adjust that may pin the line: the
// drag's hooks come in their order (the pass for the previous position only after a move and
// always followed by OnChanged with the same position), the end leaves both state bits clear,
// and the line is back at its start unless it moved.
#include "LineTrackerRules.h"

#include <cstdint>
#include <cstdlib>

using kiv::rules::TrackerDrag;

namespace {

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

struct Checker
{
    TrackerDrag& drag;
    int expectChanged = -1;  // the position OnChanged must get right after the previous pass

    void operator()(TrackerDrag::Step step, int position)
    {
        unsigned bits = drag.State();
        if (expectChanged >= 0)
            Require(step == TrackerDrag::kChanged && position == expectChanged);
        expectChanged = -1;
        if (step == TrackerDrag::kDrawOld)
        {
            Require(drag.Moved() && (bits & TrackerDrag::kPreviousPass));
            expectChanged = position;
        }
        if (step == TrackerDrag::kDrawNew)
            Require(bits == 0);
        if (step == TrackerDrag::kDrawCancel)
            Require(drag.Moved() && bits == (TrackerDrag::kEnding | TrackerDrag::kPreviousPass));
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    int position = data[0];
    const int start = position;
    TrackerDrag drag(position);
    Checker hook{drag};
    bool ended = false;
    for (std::size_t i = 1; i + 1 < size && !ended; i += 2)
    {
        int proposed = static_cast<std::int8_t>(data[i]) * 300;
        int op = data[i + 1] % 8;
        if (op == 7)
        {
            drag.Cancel(hook);
            Require(position == start);
            ended = true;
            continue;
        }
        auto adjust = [&](int& p) {
            if (op == 6)
                p = start;
        };
        ended = drag.Mouse(proposed, op == 5, adjust, hook);
        Require(ended == (op == 5) && ended == ((drag.State() & TrackerDrag::kEnding) != 0));
    }
    bool moved = drag.Moved();
    bool changed = drag.Finish();
    Require(drag.State() == 0 && hook.expectChanged < 0);
    Require(moved || position == start);
    Require(changed == (position != start));
    return 0;
}
