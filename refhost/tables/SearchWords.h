#pragma once

#include <QString>
#include <QStringList>

namespace refhost {

/// The text as searches compare it: without regard to case and to marks over letters, so that "zelezo" finds "Železo".
QString foldForSearch(const QString& text);

/// What somebody typed into a search line: words that must all occur, in any order and anywhere.
class SearchWords {
public:
    explicit SearchWords(const QString& typed = {});

    bool isEmpty() const { return words_.isEmpty(); }
    /// `foldedText` comes from foldForSearch.
    bool matches(const QString& foldedText) const;

private:
    QStringList words_;
};

} // namespace refhost
