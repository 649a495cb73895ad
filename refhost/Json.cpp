#include "refhost/Json.h"

#include "host/Exceptions.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <charconv>
#include <cmath>

namespace refhost {

namespace {

constexpr std::string_view c_hexDigits = "0123456789abcdef";

void appendEscaped(std::string& out, char character) {
    const auto code = static_cast<unsigned char>(character);
    switch (character) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        break;
    }
    if (code >= 0x20) {
        out += character;
        return;
    }
    out += "\\u00";
    out += c_hexDigits[code >> 4U];
    out += c_hexDigits[code & 0x0FU];
}

std::string jsonNumber(double value) {
    if (!std::isfinite(value)) {
        return "null";
    }
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

struct ValueWriter {
    std::string operator()(std::monostate) const { return "null"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return jsonNumber(value); }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(const AnsiString& value) const { return jsonString(value); }
};

TDbValue readValue(const QString& name, const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Null:
        return std::monostate{};
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::String:
        return value.toString().toStdString();
    case QJsonValue::Double: {
        const double number = value.toDouble();
        const auto integer = value.toInteger();
        if (static_cast<double>(integer) == number) {
            return std::int64_t{integer};
        }
        return number;
    }
    default:
        throw Exception("The value of " + name.toStdString() + " is neither a text, a number, a boolean nor null.");
    }
}

} // namespace

std::string jsonString(std::string_view text) {
    const QByteArray valid = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toUtf8();
    std::string out = "\"";
    out.reserve(static_cast<std::size_t>(valid.size()) + 2);
    for (const char character : valid) {
        appendEscaped(out, character);
    }
    out += '"';
    return out;
}

std::string jsonValue(const TDbValue& value) {
    return std::visit(ValueWriter{}, value);
}

JsonObject& JsonObject::add(std::string_view name, const TDbValue& value) {
    return addJson(name, jsonValue(value));
}

JsonObject& JsonObject::addJson(std::string_view name, std::string_view json) {
    if (!members_.empty()) {
        members_ += ',';
    }
    members_ += jsonString(name);
    members_ += ':';
    members_ += json;
    return *this;
}

std::string JsonObject::text() const {
    return "{" + members_ + "}";
}

TProcedureCall readBatchCall(std::string_view line, const std::string& defaultProcedure) {
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray(line.data(), static_cast<qsizetype>(line.size())), &error);
    if (!document.isObject()) {
        throw Exception("The line is no JSON object: " + error.errorString().toStdString() + ".");
    }
    const QJsonObject object = document.object();

    TProcedureCall call;
    call.Open = true;
    call.Name = object.value(u"call").toString(QString::fromStdString(defaultProcedure)).toStdString();
    if (call.Name.empty()) {
        throw Exception("The line names no procedure to call.");
    }
    const QJsonValue params = object.value(u"params");
    if (!params.isUndefined() && !params.isObject()) {
        throw Exception("\"params\" is no JSON object.");
    }
    const QJsonObject values = params.toObject();
    for (auto value = values.begin(); value != values.end(); ++value) {
        call.Params.push_back({value.key().toStdString(), readValue(value.key(), value.value())});
    }
    return call;
}

} // namespace refhost
