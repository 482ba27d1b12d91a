#pragma once

#include <algorithm>
#include <chrono>
#include <limits>
#include <type_traits>

namespace Tamrivo::Bench
{

/// Takes the result of measured work, so that the work isn't optimised away.
template <class Result>
void Keep(Result result)
{
    [[maybe_unused]] const volatile Result kept = result;
}

/// How long one call takes, seconds. What the work gives is destroyed after the clock has stopped.
template <class Work>
double SecondsOf(Work&& work)
{
    const auto start = std::chrono::steady_clock::now();
    const auto seconds = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    if constexpr (std::is_void_v<std::invoke_result_t<Work>>)
    {
        work();
        return seconds();
    }
    else
    {
        [[maybe_unused]] const auto result = work();
        return seconds();
    }
}

/// The time of the fastest of several calls, seconds. What slows a call down comes from outside.
template <class Work>
double FastestOf(int times, Work&& work)
{
    double fastest = std::numeric_limits<double>::max();
    for (; times > 0; --times)
        fastest = std::min(fastest, SecondsOf(work));
    return fastest;
}

/// Time of `work` as a multiple of the time of `measure`. The calls take turns, so that a slow
/// moment of the machine meets both.
template <class Work, class Measure>
double RatioOf(int times, Work&& work, Measure&& measure)
{
    double workSeconds = std::numeric_limits<double>::max();
    double measureSeconds = workSeconds;
    for (; times > 0; --times)
    {
        workSeconds = std::min(workSeconds, SecondsOf(work));
        measureSeconds = std::min(measureSeconds, SecondsOf(measure));
    }
    return workSeconds / measureSeconds;
}

} // namespace Tamrivo::Bench
