#pragma once

#include <QString>

#include <stdexcept>

/// A failure that the platform reports and that a routine may skip or trap.
///
/// Faults of this program itself are never of this type, so that no idiom below can swallow them.
class RunTimeError : public std::runtime_error
{
public:
    RunTimeError(int number, const QString &text);

    int Number() const { return m_number; }
    QString Description() const { return QString::fromUtf8(what()); }

private:
    int m_number;
};

/// Numbers of the failures that the program knows by their number.
namespace ErrorNumber {
constexpr int InvalidProcedureCall = 5;
constexpr int Overflow = 6;
constexpr int TypeMismatch = 13;
constexpr int BadFileName = 52;
constexpr int FileNotFound = 53;
constexpr int DeviceUnavailable = 68;
constexpr int PathAccess = 75;
constexpr int ObjectNotSet = 91;
constexpr int InvalidUseOfNull = 94;
constexpr int SubscriptOutOfRange = 381;
constexpr int InvalidPicture = 481;
constexpr int PrinterError = 482;
constexpr int BadSql = 3075;
constexpr int UnknownField = 3061;
constexpr int UnknownTable = 3078;
constexpr int DuplicateKey = 3022;
constexpr int FileLocked = 3050;
constexpr int ReadOnlyDatabase = 3027;
constexpr int DiskError = 3043;
constexpr int CannotOpenFile = 3044;
constexpr int UnrecognisedFormat = 3343;
} // namespace ErrorNumber

/// The program's view of the last failure that left a trapped body; 0 when there is none.
namespace Err {
int Number();
void Clear();
void set(const RunTimeError &error);

/// Whether a guard that names the failures it expects means this one; one that names none means any.
template <int... Expected>
bool isExpected(const RunTimeError &error)
{
    return sizeof...(Expected) == 0 || ((error.Number() == Expected) || ...);
}
} // namespace Err

/// Errors ignored: each step is one statement; one that fails is skipped, and the next one runs.
///
/// `OnErrorResumeNext<ErrorNumber::InvalidPicture>(...)` says which failure alone can come; any other passes through.
template <int... Expected, typename... Steps>
void OnErrorResumeNext(Steps &&...steps)
{
    const auto attempt = [](auto &step) {
        try {
            step();
        } catch (const RunTimeError &error) {
            if (!Err::isExpected<Expected...>(error))
                throw;
        }
    };
    (attempt(steps), ...);
}

/// Trapped: the first failure leaves the body for what stands behind the call. True when the body ran to its end, so
/// that a failure can be an answer. The expected failures can be named as above.
template <int... Expected, typename Body>
bool OnErrorGoToEnd(Body &&body)
{
    try {
        body();
        return true;
    } catch (const RunTimeError &error) {
        if (!Err::isExpected<Expected...>(error))
            throw;
        Err::set(error);
        return false;
    }
}
