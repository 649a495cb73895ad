#include "host/Format.h"

#include "host/ContractTexts.h"
#include "host/DecimalDigits.h"
#include "host/Exceptions.h"
#include "host/Utf8.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace {

constexpr std::size_t c_DefaultDecimals = 2;
constexpr std::size_t c_GroupDigits = 3;
constexpr std::string_view c_NoBreakSpace = "\u00A0";

struct Specifier {
    bool AlignsLeft = false;
    std::size_t Width = 0;
    std::optional<std::size_t> Precision;
    char Type = 0;
};

AnsiString Grouped(std::string_view digits, std::string_view separator) {
    AnsiString text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % c_GroupDigits == 0) {
            text += separator;
        }
        text += digits[i];
    }
    return text;
}

AnsiString WithFraction(AnsiString whole, const AnsiString& fraction, char separator) {
    return fraction.empty() ? whole : std::move(whole) + separator + fraction;
}

/// One run of Format over one format text.
class Formatter {
public:
    Formatter(std::string_view format, std::span<const TFormatArg> arguments, const TFormatSettings& settings)
        : FFormat(format), FArguments(arguments), FSettings(settings) {}

    AnsiString Run() {
        while (FPosition < FFormat.size()) {
            const std::size_t mark = std::min(FFormat.find('%', FPosition), FFormat.size());
            FResult += FFormat.substr(FPosition, mark - FPosition);
            FPosition = mark + 1;
            if (mark == FFormat.size()) {
                break;
            }
            if (Peek() == '%') {
                FResult += '%';
                ++FPosition;
            } else {
                Append(ReadSpecifier());
            }
        }
        return std::move(FResult);
    }

private:
    /// `thing` is what the sentence names beside the format text.
    [[noreturn]] void Refuse(const melvark::ContractText& sentence, std::string_view thing = {}) const {
        throw EConvertError(Sentence(sentence, {FFormat, thing}));
    }

    /// The next character, or a null character at the end, which is no part of any specifier.
    char Peek() const { return FPosition < FFormat.size() ? FFormat[FPosition] : '\0'; }

    Specifier ReadSpecifier() {
        Specifier specifier;
        if (Peek() == '-') {
            specifier.AlignsLeft = true;
            ++FPosition;
        }
        specifier.Width = ReadNumber();
        if (Peek() == '.') {
            ++FPosition;
            specifier.Precision = ReadNumber();
        }
        if (FPosition >= FFormat.size()) {
            Refuse(melvark::c_CutFormat);
        }
        specifier.Type = FFormat[FPosition++];
        return specifier;
    }

    /// The digits at the position, 0 when there are none.
    std::size_t ReadNumber() {
        std::size_t number = 0;
        for (; Peek() >= '0' && Peek() <= '9'; ++FPosition) {
            number = number * 10 + static_cast<std::size_t>(Peek() - '0');
            if (number > c_MaxFormatWidth) {
                Refuse(melvark::c_WideFormat);
            }
        }
        return number;
    }

    void Append(const Specifier& specifier) {
        const AnsiString text = Text(specifier);
        const std::size_t length = melvark::CharacterCount(text);
        const AnsiString padding(specifier.Width > length ? specifier.Width - length : 0, ' ');
        FResult += specifier.AlignsLeft ? text + padding : padding + text;
    }

    AnsiString Text(const Specifier& specifier) {
        switch (specifier.Type) {
        case 's':
            return StringText(specifier);
        case 'd':
            return IntegerText(specifier);
        case 'f':
            return FloatText(specifier);
        case 'm':
            return MoneyText(specifier);
        default:
            Refuse(melvark::c_UnknownMark,
                   "%" + AnsiString(melvark::FirstCharacters(FFormat.substr(FPosition - 1), 1)));
        }
    }

    const TFormatArg& NextArgument() {
        if (FNextArgument == FArguments.size()) {
            Refuse(melvark::c_NoArgument, std::to_string(FNextArgument + 1));
        }
        return FArguments[FNextArgument++];
    }

    [[noreturn]] void RefuseArgument(const melvark::ContractText& sentence) const {
        Refuse(sentence, std::to_string(FNextArgument));
    }

    AnsiString StringText(const Specifier& specifier) {
        const auto* text = std::get_if<AnsiString>(&NextArgument().Value());
        if (text == nullptr) {
            RefuseArgument(melvark::c_ArgumentNoText);
        }
        return specifier.Precision ? AnsiString(melvark::FirstCharacters(*text, *specifier.Precision)) : *text;
    }

    AnsiString IntegerText(const Specifier& specifier) {
        const auto* value = std::get_if<std::int64_t>(&NextArgument().Value());
        if (value == nullptr) {
            RefuseArgument(melvark::c_ArgumentNoInteger);
        }
        const melvark::DecimalDigits number = melvark::ToDecimalDigits(*value);
        const std::size_t leastDigits = specifier.Precision.value_or(0);
        const std::size_t digits = number.Whole.size();
        const AnsiString zeros(leastDigits > digits ? leastDigits - digits : 0, '0');
        return (number.Negative ? "-" : "") + zeros + number.Whole;
    }

    melvark::DecimalDigits RoundedArgument(std::size_t decimals) {
        const auto& value = NextArgument().Value();
        if (const auto* integer = std::get_if<std::int64_t>(&value)) {
            return melvark::Rounded(melvark::ToDecimalDigits(*integer), decimals);
        }
        const auto* number = std::get_if<double>(&value);
        if (number == nullptr || !std::isfinite(*number)) {
            RefuseArgument(melvark::c_ArgumentNoNumber);
        }
        return melvark::Rounded(melvark::ToDecimalDigits(*number), decimals);
    }

    AnsiString FloatText(const Specifier& specifier) {
        const melvark::DecimalDigits number = RoundedArgument(specifier.Precision.value_or(c_DefaultDecimals));
        return WithFraction((number.Negative ? "-" : "") + number.Whole, number.Fraction, FSettings.DecimalSeparator);
    }

    AnsiString MoneyText(const Specifier& specifier) {
        const auto settingsDecimals =
            static_cast<std::size_t>(std::clamp(FSettings.CurrencyDecimals, 0, c_MaxFormatWidth));
        const melvark::DecimalDigits number = RoundedArgument(specifier.Precision.value_or(settingsDecimals));
        AnsiString amount = WithFraction(Grouped(number.Whole, FSettings.ThousandSeparator), number.Fraction,
                                         FSettings.DecimalSeparator);
        const AnsiString& currency = FSettings.CurrencyString;
        if (!currency.empty() && FSettings.CurrencyAfterNumber) {
            amount.append(c_NoBreakSpace).append(currency);
        } else if (!currency.empty()) {
            amount.insert(0, currency + AnsiString(c_NoBreakSpace));
        }
        return (number.Negative ? "-" : "") + amount;
    }

    std::string_view FFormat;
    std::span<const TFormatArg> FArguments;
    const TFormatSettings& FSettings;
    AnsiString FResult;
    std::size_t FPosition = 0;
    std::size_t FNextArgument = 0;
};

} // namespace

AnsiString Format(std::string_view format, std::span<const TFormatArg> arguments, const TFormatSettings& settings) {
    return Formatter(format, arguments, settings).Run();
}

AnsiString Format(std::string_view format, std::initializer_list<TFormatArg> arguments,
                  const TFormatSettings& settings) {
    return Format(format, std::span<const TFormatArg>(arguments.begin(), arguments.size()), settings);
}
