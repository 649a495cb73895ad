#include "refhost/tables/SearchWords.h"

#include <algorithm>

namespace refhost {

QString foldForSearch(const QString& text) {
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    QString folded;
    folded.reserve(decomposed.size());
    for (const QChar character : decomposed) {
        if (character.category() != QChar::Mark_NonSpacing) {
            folded.append(character);
        }
    }
    return folded.toCaseFolded();
}

SearchWords::SearchWords(const QString& typed)
    : words_(foldForSearch(typed).simplified().split(u' ', Qt::SkipEmptyParts)) {}

bool SearchWords::matches(const QString& foldedText) const {
    return std::all_of(words_.cbegin(), words_.cend(), [&](const QString& word) { return foldedText.contains(word); });
}

} // namespace refhost
