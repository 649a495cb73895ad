#pragma once

/// \file
/// What a host gives, and how it installs itself.

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
///
/// A host derives from it, makes one object before it loads a package, installs it with TScopedHost and keeps it until
/// its last window is gone. A package's `Initialize` then registers its classes with Classes().
class THostServices {
public:
    THostServices() = default;
    THostServices(const THostServices&) = delete;
    THostServices& operator=(const THostServices&) = delete;
    virtual ~THostServices();

    /// The open connection of the user who works; the same object as long as anything of a package is open. Throws
    /// EHostError or EDatabaseError when there is none.
    virtual TConnection& Connection() = 0;
    /// The user's locale. The reference holds as long as the host.
    virtual const TFormatSettings& FormatSettings() const = 0;

    /// The user's translation of the key, or nothing. `builtIn` is the text used without one: entries that share a key
    /// are told apart by it.
    virtual std::optional<AnsiString> Translation(std::string_view key, std::string_view builtIn) const = 0;

    /// The bytes of a PNG image of a group of the resource module, empty when there is none of that name: a button then
    /// shows its caption. The bytes hold as long as the host.
    virtual std::string_view ImageData(std::string_view image, std::string_view group) const = 0;

    /// This moment on the clerk's clock, without a time zone. A two-digit year is read by it.
    virtual TDateTime Now() const = 0;

    /// The host's error display: called with an exception that would otherwise leave a slot, timer or event handler.
    /// Shows it and returns; never throws.
    virtual void ShowError(std::exception_ptr error) noexcept = 0;

    /// A digest of the database's address, in letters and digits: the same for each program that reaches the same
    /// database under the same address, whoever its user is. What is kept on this machine for one database only is
    /// filed under it; an empty one means that the host has one database and no other.
    virtual AnsiString DatabaseDigest() const = 0;

    /// The classes of the packages that this host has loaded.
    TClassRegistry& Classes() { return FClasses; }

private:
    TClassRegistry FClasses;
};

/// Whether a host is installed.
bool HasCurrentHost();

/// The installed host. Throws EHostError when there is none.
THostServices& CurrentHost();

/// Installs a host for the life of the object and brings back the one before. A program makes one in main(), before it
/// loads a package; a test makes one in its fixture. Scopes end in the opposite order.
class TScopedHost {
public:
    /// The host must outlive the scope.
    explicit TScopedHost(THostServices& services);
    TScopedHost(const TScopedHost&) = delete;
    TScopedHost& operator=(const TScopedHost&) = delete;
    ~TScopedHost();

private:
    THostServices* FPrevious;
};
