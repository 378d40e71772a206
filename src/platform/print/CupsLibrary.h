#pragma once

#include <QLibrary>

#include <cups/cups.h>

/// The print system's library, by its own names. It is loaded by the first question about printers and not with the
/// program, as its own libraries would make the start a sixth longer.
class CupsLibrary
{
public:
    static const CupsLibrary &current();
    /// Without it no function here may be called.
    bool isThere() const { return m_library.isLoaded(); }

private:
    /// One of the library's functions; the place to which it goes tells its type.
    struct Found
    {
        QFunctionPointer function;
        template <typename Function>
        operator Function *() const // NOLINT(google-explicit-constructor)
        {
            return reinterpret_cast<Function *>(function);
        }
    };

    CupsLibrary() = default;
    Found function(const char *name) { return {m_library.resolve(name)}; }

    QLibrary m_library{"cups", 2};

public:
    decltype(&::cupsAddOption) cupsAddOption = function("cupsAddOption");
    decltype(&::cupsCopyDestInfo) cupsCopyDestInfo = function("cupsCopyDestInfo");
    decltype(&::cupsCreateDestJob) cupsCreateDestJob = function("cupsCreateDestJob");
    decltype(&::cupsEncryption) cupsEncryption = function("cupsEncryption");
    decltype(&::cupsFindDestDefault) cupsFindDestDefault = function("cupsFindDestDefault");
    decltype(&::cupsFinishDestDocument) cupsFinishDestDocument = function("cupsFinishDestDocument");
    decltype(&::cupsFreeDestInfo) cupsFreeDestInfo = function("cupsFreeDestInfo");
    decltype(&::cupsFreeDests) cupsFreeDests = function("cupsFreeDests");
    decltype(&::cupsFreeOptions) cupsFreeOptions = function("cupsFreeOptions");
    decltype(&::cupsGetDestMediaBySize) cupsGetDestMediaBySize = function("cupsGetDestMediaBySize");
    decltype(&::cupsGetDestMediaDefault) cupsGetDestMediaDefault = function("cupsGetDestMediaDefault");
    decltype(&::cupsGetDests2) cupsGetDests2 = function("cupsGetDests2");
    decltype(&::cupsLastErrorString) cupsLastErrorString = function("cupsLastErrorString");
    decltype(&::cupsServer) cupsServer = function("cupsServer");
    decltype(&::cupsSetPasswordCB2) cupsSetPasswordCB2 = function("cupsSetPasswordCB2");
    decltype(&::cupsStartDestDocument) cupsStartDestDocument = function("cupsStartDestDocument");
    decltype(&::cupsWriteRequestData) cupsWriteRequestData = function("cupsWriteRequestData");
    decltype(&::httpClose) httpClose = function("httpClose");
    decltype(&::httpConnect2) httpConnect2 = function("httpConnect2");
    decltype(&::httpSetTimeout) httpSetTimeout = function("httpSetTimeout");
    decltype(&::ippGetResolution) ippGetResolution = function("ippGetResolution");
    decltype(&::ippPort) ippPort = function("ippPort");
};
