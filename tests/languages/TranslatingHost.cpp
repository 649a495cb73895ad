#include "tests/languages/TranslatingHost.h"

TranslatingHost::TranslatingHost(const std::string& language) : languages_(language) {}

void TranslatingHost::note(std::string key, std::string builtIn) const {
    asked_.emplace(std::move(key), std::move(builtIn));
}

std::optional<AnsiString> TranslatingHost::Translation(std::string_view key, std::string_view builtIn) const {
    note(std::string(key), std::string(builtIn));
    return languages_.translation(key, builtIn);
}

void TranslatingLibraryManager::LocalizeForm(TLocalizableForm& form, const AnsiString& section) {
    form.VisitTexts([&](const TLocalizableForm::TText& text) {
        const std::string key = section + "\\" + text.Control + "\\" + text.Property;
        host_.note(key, text.Text);
        if (const auto translation = host_.languages().translation(key, text.Text)) {
            text.Replace(*translation);
        }
    });
}
