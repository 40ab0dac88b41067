// Any bytes as a plural expression, a header and a pair of format strings: the checks of a
// translator's file read only inside their text, never recurse without bound, and agree with
// themselves (a string always takes the arguments it takes).
#include "PoChecks.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace kiv::rules;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > 512)
        return 0;  // the readers are linear: longer texts only make each input slower
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    long long form = 0;
    for (unsigned long n : {0ul, 1ul, 2ul, 11ul, 1000ul})
        EvaluatePlural(bytes, n, form);

    PluralForms forms;
    std::string problem;
    // The range check tries an expression on a thousand numbers: done for short expressions of
    // one input in eight, so the fuzzer keeps its pace.
    if (ParsePluralForms("Plural-Forms: " + std::string(bytes) + "\n", forms, problem) && forms.count <= 64 &&
        forms.expression.size() <= 48 && data[size - 1] % 8 == 0)
    {
        CheckPluralRange(forms);
        if (FormsOfOneNumber(forms).size() != forms.count)
            __builtin_trap();
    }

    std::size_t half = bytes.find('|');
    std::string_view source = bytes.substr(0, half);
    std::string_view translation = half == std::string_view::npos ? bytes : bytes.substr(half + 1);
    std::vector<FormatArgument> arguments;
    if (ParseCFormat(source, arguments) && !CompareCFormat(source, source).empty())
        __builtin_trap();
    CompareCFormat(source, translation);
    CompareCFormat(source, translation, true);
    return 0;
}
