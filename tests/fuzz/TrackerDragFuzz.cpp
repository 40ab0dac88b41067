// Any sequence of moves, releases and cancels: the drag's hooks come in their order, the
// drawing pass for the previous position only after a move, and the end leaves both state
// bits clear with the position at the start unless the line moved.
#include "LineTrackerRules.h"

#include <cstdint>
#include <cstdlib>

using kiv::rules::TrackerDrag;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 1)
        return 0;
    const int start = data[0];
    TrackerDrag drag(start);
    int lastChanged = -1;
    bool ended = false;
    auto hook = [&](TrackerDrag::Step step, int position) {
        if (step == TrackerDrag::kDrawOld && !drag.Moved())
            std::abort();
        if (step == TrackerDrag::kChanged)
            lastChanged = position;
        (void)position;
    };
    for (std::size_t i = 1; i + 1 < size && !ended; i += 2)
    {
        int proposed = data[i];
        int op = data[i + 1] % 8;
        if (op == 7)
        {
            drag.Cancel(hook);
            ended = true;
        }
        else
        {
            int adjusted = op == 6 ? start : proposed;
            ended = drag.Mouse(
                proposed, op == 5, [&](int& p) { p = adjusted; }, hook);
            if (ended && (drag.State() & TrackerDrag::kEnding) == 0)
                std::abort();
        }
    }
    bool moved = drag.Moved();
    bool changed = drag.Finish();
    if (drag.State() != 0 || (!moved && drag.Position() != start) || changed != (drag.Position() != start))
        std::abort();
    (void)lastChanged;
    return 0;
}
