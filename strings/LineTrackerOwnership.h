// How a tracker list lets go of the line that is being dragged: the line is deleted when its
// drag ends rather than under it. Internal to the library.
#pragma once

class mfcCLineTracker;

namespace kiv::strings {

// True when the line is being dragged: it will delete itself once the drag ends.
bool DeleteAfterItsDrag(mfcCLineTracker* pTracker);

}  // namespace kiv::strings
