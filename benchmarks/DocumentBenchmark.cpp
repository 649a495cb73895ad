// What reading a stored column layout costs, ordinary and far too large.
//
// Floor: the bare parser over the same text, without a tree.
// Measured: the reading onto the 26 columns of an editor, as the editor does it when it opens. Medians of the rounds.
//
//   document_benchmark [ROUNDS]

#include "editwin/model/ColumnSettingsDocument.h"
#include "tests/support/BadDocuments.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <expat.h>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::vector<RColumn> editorColumns() {
    std::vector<RColumn> columns;
    for (int index = 0; index < 26; ++index) {
        const std::string number = std::to_string(index);
        columns.push_back({.Name = "SLOUPEC" + number,
                           .Caption = "Jedn. cena s DPH " + number,
                           .Hint = "Cena s DPH bez slevy za jednotku množství",
                           .Visible = true,
                           .DataColumn = index});
    }
    return columns;
}

/// The largest document that is still read: `piece` as often as it fits between the two ends.
std::string filled(std::string text, std::string_view piece, std::string_view end) {
    constexpr std::size_t c_Largest = std::size_t{16} * 1024 * 1024;
    while (text.size() + piece.size() + end.size() <= c_Largest) {
        text += piece;
    }
    return text.append(end);
}

bool parseBare(std::string_view text) {
    XML_Parser parser = XML_ParserCreate("UTF-8");
    const bool isParsed = XML_Parse(parser, text.data(), static_cast<int>(text.size()), XML_TRUE) == XML_STATUS_OK;
    XML_ParserFree(parser);
    return isParsed;
}

/// The processor's time, so that others on the machine count less.
template <class Work>
double medianMilliseconds(int rounds, Work work) {
    std::vector<double> figures;
    for (int round = 0; round < rounds; ++round) {
        const std::clock_t start = std::clock();
        work();
        figures.push_back(1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::ranges::nth_element(figures, figures.begin() + rounds / 2);
    return figures[static_cast<std::size_t>(rounds / 2)];
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 5;
    const std::vector<RColumn> columns = editorColumns();
    const std::string ordinary = melvark::WriteColumnSettings(columns, true);
    std::vector<BadDocument> documents = {
        {"Ordinary", ordinary},
        {"ManyColumns", filled("<settings><columns>", "<column><name>NIC</name></column>", "</columns></settings>")},
        {"ManyChildren",
         filled("<settings><columns><column><name>SLOUPEC7</name>", "<a/>", "</column></columns></settings>")},
        {"LongCaption", filled("<settings><columns><column><name>SLOUPEC7</name><caption>", "x",
                               "</caption></column></columns></settings>")},
    };
    for (const BadDocument& bad : badDocuments("settings", ordinary)) {
        if (bad.Text.size() > ordinary.size() * 10 || std::string_view(bad.Name) == "Bomb") {
            documents.push_back(bad);
        }
    }
    std::printf("%-14s %12s %12s %12s %8s\n", "document", "bytes", "floor ms", "read ms", "ratio");
    for (const BadDocument& document : documents) {
        const double floor = medianMilliseconds(rounds, [&] { parseBare(document.Text); });
        const double read = medianMilliseconds(rounds, [&] {
            if (melvark::ReadColumnSettings(document.Text, columns, columns).Columns.size() != columns.size()) {
                std::abort();
            }
        });
        std::printf("%-14s %12zu %12.3f %12.3f %8.2f\n", document.Name, document.Text.size(), floor, read,
                    read / floor);
    }
    return 0;
}
