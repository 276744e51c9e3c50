#include "editor/AnimationRates.h"

#include <algorithm>

#include "editor/NumberText.h"
#include "imaging/Rounding.h"
#include "services/core/TextCatalog.h"

namespace iw {

std::string RateUnitText(RateUnit unit) {
    return GetText(unit == RateUnit::Jiffies ? texts::Jiffies : texts::Seconds);
}

std::string RateText(int jiffies, RateUnit unit) {
    if (unit == RateUnit::Jiffies) return NumberText(jiffies);
    // Thousandths of a second, rounded as every conversion is, then written out by hand so
    // the locale never changes the decimal point.
    const int thousandths = RoundHalfEven(jiffies * 1000, kJiffiesPerSecond);
    std::string text = std::to_string(thousandths / 1000);
    const int fraction = thousandths % 1000;
    if (fraction != 0) {
        std::string decimals = std::to_string(1000 + fraction).substr(1);  // three digits
        decimals.erase(decimals.find_last_not_of('0') + 1);
        text += "." + decimals;
    }
    return text;
}

std::optional<int> RateFromText(std::string_view text, RateUnit unit) {
    if (unit == RateUnit::Jiffies) {
        const std::optional<int> jiffies = ParseInteger(text);
        if (!jiffies || *jiffies < 0 || *jiffies > kMaxRate) return std::nullopt;
        return jiffies;
    }
    const std::optional<double> seconds = ParseNumber(text);
    if (!seconds || *seconds < 0) return std::nullopt;
    const double jiffies = *seconds * kJiffiesPerSecond;
    if (jiffies >= kMaxRate + 0.5) return std::nullopt;
    return RoundHalfEven(jiffies);
}

int RateMilliseconds(int jiffies) {
    return RoundHalfEven(std::max(jiffies, 1) * 1000, kJiffiesPerSecond);
}

}  // namespace iw
