#include "sitedb/tables/StatusWords.h"

#include "foundation/TextFunctions.h"
#include "sitedb/tables/Modc.h"
#include "sitedb/tables/SiteIds.h"

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace k7deval::sitedb
{

namespace
{

struct StatusWord {
    std::int32_t word;
    std::string meaning;
    bool valid;
    bool excluded;
    bool offline;
};

// 35 and 36 are the words that range evaluation counts as 200 % replacement. They are valid, since
// it counts them among the hours of the range.
const std::array kOwnWords{
    StatusWord{status::kNoData, "no data", false, false, false},
    StatusWord{status::kMeasured, "measured", true, false, false},
    StatusWord{status::kUnitOffline, "unit off line", false, false, true},
    StatusWord{status::kExcluded, "left out of evaluations", true, true, false},
    StatusWord{status::kOnlineCalibration, "calibration with the unit on line", true, false, false},
    StatusWord{status::kOfflineCalibration, "calibration with the unit off line", true, false,
               true},
    StatusWord{status::kReplacedByTwiceMpc, "200 % of the maximum potential concentration", true,
               false, false},
    StatusWord{status::kReplacedByTwiceRange, "200 % of the full scale", true, false, false},
};

StatusWord wordOf(const Modc& modc)
{
    return {statusWord(modc), "MODC " + twoDigits(modc.code) + ": " + std::string(modc.meaning),
            modc.use != ModcUse::Missing, modc.use == ModcUse::LeftOut, false};
}

std::vector<StatusWord> standardWords()
{
    std::vector<StatusWord> words(kOwnWords.begin(), kOwnWords.end());
    for (const auto& modc : allModcs()) {
        if (std::ranges::find(words, statusWord(modc), &StatusWord::word) == words.end())
            words.push_back(wordOf(modc));
    }
    return words;
}

std::set<std::int32_t> wordsOf(sql::Connection& connection)
{
    std::set<std::int32_t> words;
    const auto rows = connection.prepare("SELECT word FROM status_word");
    while (rows->step())
        words.insert(rows->int32(0));
    return words;
}

} // namespace

bool lacksStatusWords(sql::Connection& connection)
{
    const auto held = wordsOf(connection);
    return std::ranges::any_of(standardWords(),
                               [&](const StatusWord& word) { return !held.contains(word.word); });
}

void addStatusWords(sql::Connection& connection)
{
    const auto insert = connection.prepare(connection.dialect().insertIfNew(
        {"status_word", {"word"}, {"meaning", "valid", "excluded", "offline"}}));
    for (const auto& word : standardWords())
        insert->run(std::int64_t{word.word}, word.meaning, std::int64_t{word.valid},
                    std::int64_t{word.excluded}, std::int64_t{word.offline});
}

} // namespace k7deval::sitedb
