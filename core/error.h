#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace Tamrivo
{

/// What is known of a failure. It travels up the calls unchanged.
struct ErrorRecord
{
    std::int32_t Number = 0;
    std::string Source;      ///< Where it arose.
    std::string Description; ///< What a person is told.
    std::string HelpFile;
    std::int32_t HelpContext = 0;

    bool operator==(const ErrorRecord&) const = default;
};

/// Numbers of the failures that the library and its host raise.
namespace ErrorNumber
{
inline constexpr std::int32_t InvalidArgument = 5;
inline constexpr std::int32_t OutOfRange = 6;
inline constexpr std::int32_t NotANumber = 13;
inline constexpr std::int32_t Unexpected = 51;
inline constexpr std::int32_t NoObject = 91;
inline constexpr std::int32_t KeyTaken = 457;
/// The base of the numbers that an application gives to errors of its own.
inline constexpr std::int32_t Application = -2147221504;
} // namespace ErrorNumber

/// An error record on its way up the calls.
class Failure : public std::exception
{
public:
    explicit Failure(ErrorRecord record) : m_record(std::move(record)) {}
    Failure(std::int32_t number, std::string source, std::string description)
        : m_record{number, std::move(source), std::move(description), {}, 0}
    {}

    const ErrorRecord& Record() const { return m_record; }
    const char* what() const noexcept override { return m_record.Description.c_str(); }

private:
    ErrorRecord m_record;
};

/// The record of the `std::exception` being handled; one that carries none becomes
/// `ErrorNumber::Unexpected` with its own message. Call it in its catch block only.
ErrorRecord CurrentError();

} // namespace Tamrivo
