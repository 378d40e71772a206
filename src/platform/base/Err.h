#pragma once

#include <QString>

#include <stdexcept>
#include <utility>

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

/// The program's view of the last failure that was skipped or trapped; 0 when there is none.
namespace Err {
int Number();
void Clear();
void set(const RunTimeError &error);
} // namespace Err

/// Errors ignored: each statement that fails is skipped, and the next one runs. True when none failed.
template <typename... Statements>
bool OnErrorResumeNext(Statements &&...statements)
{
    const auto attempt = [](auto &&statement) {
        try {
            statement();
            return true;
        } catch (const RunTimeError &error) {
            Err::set(error);
            return false;
        }
    };
    bool all = true;
    ((all = attempt(std::forward<Statements>(statements)) && all), ...);
    return all;
}

/// Trapped: the first failure leaves the body for what stands behind the call. True when the body ran to its end.
template <typename Body>
bool OnErrorGoToEnd(Body &&body)
{
    return OnErrorResumeNext(std::forward<Body>(body));
}
