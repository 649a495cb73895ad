#include "editwin/AutosavePlace.h"

#include "host/StateFolder.h"

#include <QCryptographicHash>

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <unistd.h>

namespace melvark {

namespace {

constexpr char c_Spelled = '%';

/// The longest part without a digest, and how much stands before one, in bytes. A cut part is longer than any other, so
/// that the two never meet; file systems take names of 255 bytes.
constexpr std::size_t c_LongestPart = 80;
constexpr std::size_t c_CutPart = 40;

bool StandsInAName(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value > ' ' && value != 0x7F && byte != '/' && byte != c_Spelled;
}

/// Whether a text must not be cut before the byte.
bool IsWithinACharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

AnsiString Spelled(std::string_view text) {
    AnsiString part;
    for (const char byte : text) {
        if (StandsInAName(byte)) {
            part += byte;
        } else {
            constexpr std::string_view c_Digits = "0123456789ABCDEF";
            const auto value = static_cast<unsigned char>(byte);
            part += {c_Spelled, c_Digits[value / 16], c_Digits[value % 16]};
        }
    }
    return part;
}

AnsiString Digest(const AnsiString& text) {
    return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha256).toHex().toStdString();
}

std::filesystem::path Base() {
    const char* const temporary = std::getenv("TMPDIR");
    if (temporary && *temporary != '\0') {
        return std::filesystem::absolute(temporary);
    }
    return StateFolder();
}

} // namespace

// A temporary directory is shared: the number of the system's user keeps users apart.
AnsiString AutosaveDirectory(const AnsiString& databaseDigest) {
    return Base() / ("melvark-autosave-" + std::to_string(geteuid()) + "-" + FileNamePart(databaseDigest));
}

AnsiString FileNamePart(const AnsiString& text) {
    if (text.empty()) {
        return {c_Spelled}; // nothing is spelled by the sign alone
    }
    AnsiString part = Spelled(text);
    if (part.size() <= c_LongestPart) {
        return part;
    }
    std::size_t end = c_CutPart;
    while (end > 0 && IsWithinACharacter(part[end])) {
        --end;
    }
    return part.substr(0, end) + "-" + Digest(text);
}

} // namespace melvark
