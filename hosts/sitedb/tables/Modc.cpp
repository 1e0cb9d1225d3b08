#include "sitedb/tables/Modc.h"

#include "sitedb/PlainText.h"
#include "sitedb/tables/SiteIds.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace k7deval::sitedb
{

namespace
{

constexpr std::int32_t kFirstModcWord = 100;
constexpr std::int32_t kTwiceMpc = 19;
constexpr std::int32_t kTwiceRange = 20;

// The reason for each use stands in docs/site-database.md. The codes 32 to 35 and 41 to 44 are
// those of mercury and acid gases under 40 CFR 63 Subpart UUUUU; all others are of 40 CFR 75.
constexpr std::array kModcs{
    Modc{1, ModcUse::Measured, "primary monitor"},
    Modc{2, ModcUse::Measured, "backup monitor"},
    Modc{3, ModcUse::Measured, "approved alternative monitor"},
    Modc{4, ModcUse::Measured, "reference method"},
    Modc{5, ModcUse::Missing, "parametric monitoring"},
    Modc{6, ModcUse::Missing, "average of the hours before and after"},
    Modc{7, ModcUse::Missing, "initial missing data"},
    Modc{8, ModcUse::Missing, "90th percentile of the lookback period"},
    Modc{9, ModcUse::Missing, "95th percentile of the lookback period"},
    Modc{10, ModcUse::Missing, "highest value of the lookback period"},
    Modc{11, ModcUse::Missing, "average of the load range in the lookback period"},
    Modc{12, ModcUse::Missing, "maximum potential concentration or flow"},
    Modc{13, ModcUse::Missing, "maximum expected concentration"},
    Modc{14, ModcUse::Missing, "diluent cap"},
    Modc{15, ModcUse::Missing, "1.25 times the highest controlled value"},
    Modc{16, ModcUse::LeftOut, "very low sulfur fuel"},
    Modc{17, ModcUse::Measured, "like-kind replacement analyzer"},
    Modc{18, ModcUse::Missing, "maximum potential concentration for a part of the hour"},
    Modc{kTwiceMpc, ModcUse::Measured, "200 % of the maximum potential concentration"},
    Modc{kTwiceRange, ModcUse::Measured, "200 % of the full scale"},
    Modc{21, ModcUse::Measured, "negative average replaced by zero"},
    Modc{22, ModcUse::Measured, "certified inlet monitor"},
    Modc{23, ModcUse::Missing, "maximum potential value, unmonitored bypass"},
    Modc{24, ModcUse::Missing, "maximum expected value, unmonitored bypass"},
    Modc{32, ModcUse::LeftOut, "single sorbent trap"},
    Modc{33, ModcUse::LeftOut, "sorbent trap with the higher concentration"},
    Modc{34, ModcUse::Missing, "missing or invalid"},
    Modc{35, ModcUse::Missing, "not monitored, bypass"},
    Modc{41, ModcUse::LeftOut, "sorbent traps changed in the hour"},
    Modc{42, ModcUse::LeftOut, "sorbent traps changed during a test"},
    Modc{43, ModcUse::LeftOut, "sorbent traps below the detection level"},
    Modc{44, ModcUse::LeftOut, "single sorbent trap below the detection level"},
    Modc{46, ModcUse::Missing, "missing, not substituted"},
    Modc{47, ModcUse::Missing, "available, not used"},
    Modc{48, ModcUse::Missing, "missing, not substituted, bypass stack"},
    Modc{53, ModcUse::Measured, "other approved method"},
    Modc{54, ModcUse::Measured, "other approved method"},
    Modc{55, ModcUse::Missing, "other approved substitute"},
};

} // namespace

std::span<const Modc> allModcs()
{
    return kModcs;
}

const Modc* findModc(std::string_view text)
{
    const auto code = text.size() <= 2 ? plainWhole(text) : std::nullopt;
    if (!code)
        return nullptr;
    const auto index = std::ranges::find(kModcs, *code, &Modc::code) - kModcs.begin();
    return index == std::ssize(kModcs) ? nullptr : &kModcs[static_cast<std::size_t>(index)];
}

std::int32_t statusWord(const Modc& modc)
{
    if (modc.code == kTwiceMpc)
        return status::kReplacedByTwiceMpc;
    if (modc.code == kTwiceRange)
        return status::kReplacedByTwiceRange;
    return kFirstModcWord + modc.code;
}

} // namespace k7deval::sitedb
