// Any sign, point position, decimals and digit count: the layout's ranges stay inside the
// digit string and the zeros never outnumber the decimals left beside the digits.
#include "FixedNotation.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    int values[4] = {};
    std::memcpy(values, data, size < sizeof(values) ? size : sizeof(values));
    int sign = values[0], decpt = values[1], decimals = values[2], digits = values[3];
    kiv::rules::FixedLayout layout = kiv::rules::LayoutFixed(sign, decpt, decimals, digits);
    int length = digits < 0 ? 0 : digits;
    if (layout.integerDigits < 0 || layout.integerDigits > length)
        std::abort();
    if (layout.fractionFirst < 0 || layout.fractionFirst > length)
        std::abort();
    if (layout.zeros < 0 || (layout.zeros > 0 && static_cast<long long>(layout.zeros) + length > decimals))
        std::abort();
    if (layout.negative != (sign != 0) || layout.leadingZero != (decpt < 1))
        std::abort();
    return 0;
}
