#include "core/recurrence/calendar_walk.h"
#include "core/values/text.h"

#include <cstdio>
#include <iostream>
#include <string>

// For comparing with another implementation: of each line "DTSTART END RULE" on the standard input, the dates of
// the rule from DTSTART until before END, on a line.
int main() {
    for (std::string line; std::getline(std::cin, line);) {
        const auto parts = values::split(line, " ");
        const auto start = parts.size() == 3 ? recurrence::moment_of(parts[0]) : std::nullopt;
        const auto end = start ? recurrence::moment_of(parts[1]) : std::nullopt;
        const auto rule = end ? recurrence::calendar_rule_of(parts[2]) : std::nullopt;
        if (!rule) {
            std::cout << "unreadable\n";
            continue;
        }
        const auto until = rule->until ? rule->until->time : end->time;
        recurrence::CalendarWalk walk(*rule, {.start = start->time, .end = end->time, .until = until},
                                      [](std::size_t) {});
        while (const auto date = walk.next())
            std::printf("%04d%02d%02dT%02d%02d%02d ", date->year(), date->month(), date->day(), date->hour(),
                        date->minute(), date->second());
        std::puts("");
    }
}
