#pragma once

#include "host/ClassRegistry.h"
#include "host/FormatSettings.h"
#include "host/Types.h"

#include <exception>
#include <optional>
#include <string_view>

class TConnection;

/// What a running host gives to everything that is created by name or looked up: the connection, languages, formats,
/// images, the clock, the error display and the class registry.
///
/// The host installs itself once with TScopedHost; tests install one of their own within a scope. This is the only
/// global of the contract. All services are used on the user-interface thread.
class THostServices {
public:
    THostServices() = default;
    THostServices(const THostServices&) = delete;
    THostServices& operator=(const THostServices&) = delete;
    virtual ~THostServices();

    virtual TConnection& Connection() = 0;
    virtual const TFormatSettings& FormatSettings() const = 0;

    /// The user's translation of the key, or nothing. `builtIn` is the text used without one: entries that share a key
    /// are told apart by it.
    virtual std::optional<AnsiString> Translation(std::string_view key, std::string_view builtIn) const = 0;

    /// The bytes of a PNG image of a group of the resource module, empty when there is none of that name.
    virtual std::string_view ImageData(std::string_view image, std::string_view group) const = 0;

    virtual TDateTime Now() const = 0;

    /// The host's error display: called with an exception that would otherwise leave a slot, timer or event handler.
    /// Shows it and returns; never throws.
    virtual void ShowError(std::exception_ptr error) noexcept = 0;

    /// A digest of the database's address, in letters and digits: the same for each program that reaches the same
    /// database under the same address, whoever its user is. What is kept on this machine for one database only is
    /// filed under it; an empty one means that the host has one database and no other.
    virtual AnsiString DatabaseDigest() const = 0;

    TClassRegistry& Classes() { return FClasses; }

private:
    TClassRegistry FClasses;
};

/// Whether a host is installed.
bool HasCurrentHost();

/// The installed host. Throws EHostError when there is none.
THostServices& CurrentHost();

/// Installs a host for the life of the object and brings back the one before.
class TScopedHost {
public:
    explicit TScopedHost(THostServices& services);
    TScopedHost(const TScopedHost&) = delete;
    TScopedHost& operator=(const TScopedHost&) = delete;
    ~TScopedHost();

private:
    THostServices* FPrevious;
};
