#include "host/store/history_record.h"

#include "core/error.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <array>
#include <cstdio>
#include <type_traits>

namespace Tamrivo
{

std::string Sha256(std::string_view text)
{
    // A store that is closed while the program ends seals its history; the library must not have
    // cleaned up by then.
    static const int staysToTheEnd = OPENSSL_init_crypto(OPENSSL_INIT_NO_ATEXIT, nullptr);
    static_cast<void>(staysToTheEnd);
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned int length = 0;
    if (EVP_Digest(text.data(), text.size(), digest.data(), &length, EVP_sha256(), nullptr) != 1)
        throw Failure(ErrorNumber::Unexpected, "History", "The digest can't be computed");
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    hex.reserve(std::size_t{2} * length);
    for (unsigned int at = 0; at < length; ++at)
    {
        hex += digits[digest[at] >> 4U];
        hex += digits[digest[at] & 0xFU];
    }
    return hex;
}

std::string DigestOf(const HistoryRecord& record, const std::string& previous)
{
    // Each text has its length in front, so that nothing can move from one to the next.
    std::string text;
    text.reserve(record.Content.size() + 512);
    const auto add = [&text](const std::string& part) {
        text.append(std::to_string(part.size())).append(":").append(part).append("\n");
    };
    record.VisitColumns([&](std::string_view, const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>)
            add(&value == &record.Digest ? previous : value);
        else
            add(std::to_string(value));
    });
    return Sha256(text);
}

std::string IsoTime(HistoryTime moment)
{
    namespace chrono = std::chrono;
    const auto day = chrono::floor<chrono::days>(moment);
    const chrono::year_month_day date(day);
    const chrono::hh_mm_ss time(moment - day);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ",
                  static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                  static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                  static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()),
                  static_cast<int>(time.subseconds().count()));
    return text.data();
}

} // namespace Tamrivo
