#include "benchmarks/database/GrowthPlot.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <vector>

namespace benchmark {

namespace {

constexpr double c_PanelWidth = 300;
constexpr double c_PanelHeight = 190;
constexpr double c_Left = 52;
constexpr double c_Top = 34;
constexpr double c_Right = 12;
constexpr double c_Bottom = 26;
constexpr int c_PanelsInRow = 3;
constexpr double c_LegendHeight = 30;

struct Line {
    const char* Engine;
    const char* Title;
    const char* Colour;
};
constexpr Line c_Lines[] = {{"SQLite", "embedded", "#1b6ca8"}, {"PostgreSQL", "server", "#c0562f"}};

/// Whole powers of ten around the values.
struct Decades {
    double First;
    double Last;

    double share(double value) const { return (std::log10(value) - First) / (Last - First); }
};

Decades decadesOf(const std::vector<double>& values) {
    const auto [least, most] = std::ranges::minmax(values);
    const double first = std::floor(std::log10(least));
    return {first, std::max(first + 1, std::ceil(std::log10(most)))};
}

std::string shortNumber(double value, Unit unit) {
    std::ostringstream text;
    if (unit == Unit::Bytes) {
        text << value << " B";
    } else if (value >= 1e6) {
        text << value / 1e6 << " s";
    } else if (value >= 1e3) {
        text << value / 1e3 << " ms";
    } else {
        text << value << " µs";
    }
    return text.str();
}

/// One kind of work: its frame, its axes and a line for each engine.
class Panel {
public:
    Panel(std::ostream& out, std::span<const Figure> figures, std::string work, double x, double y)
        : out_(out), figures_(figures), work_(std::move(work)), x_(x), y_(y) {
        std::vector<double> sizes;
        std::vector<double> costs;
        for (const Figure& figure : figures_) {
            sizes.push_back(figure.Size);
            if (figure.Work == work_) {
                unit_ = figure.CountedIn;
                costs.push_back(figure.Cost);
                costs.push_back(figure.Floor);
            }
        }
        sizes_ = decadesOf(sizes);
        costs_ = decadesOf(costs);
    }

    void draw() const {
        out_ << "<text x='" << x_ + c_Left << "' y='" << y_ + 22 << "' font-weight='bold'>" << work_ << "</text>\n";
        for (double decade = costs_.First; decade <= costs_.Last; ++decade) {
            const double y = top(std::pow(10, decade));
            out_ << "<path d='M" << left(std::pow(10, sizes_.First)) << " " << y << "H" << x_ + c_PanelWidth - c_Right
                 << "' stroke='#dddddd'/><text x='" << x_ + c_Left - 5 << "' y='" << y + 4
                 << "' text-anchor='end' fill='#666666'>" << shortNumber(std::pow(10, decade), unit_) << "</text>\n";
        }
        for (double decade = sizes_.First; decade <= sizes_.Last; ++decade) {
            out_ << "<text x='" << left(std::pow(10, decade)) << "' y='" << y_ + c_PanelHeight - 8
                 << "' text-anchor='middle' fill='#666666'>" << std::llround(std::pow(10, decade)) << "</text>\n";
        }
        for (const Line& line : c_Lines) {
            drawLine(line, &Figure::Floor, " stroke-dasharray='3 3' stroke-opacity='0.6'");
            drawLine(line, &Figure::Cost, "");
        }
    }

private:
    double left(double size) const { return x_ + c_Left + sizes_.share(size) * (c_PanelWidth - c_Left - c_Right); }
    double top(double cost) const {
        return y_ + c_PanelHeight - c_Bottom - costs_.share(cost) * (c_PanelHeight - c_Top - c_Bottom);
    }
    void drawLine(const Line& line, double Figure::*value, const char* style) const {
        std::string points;
        for (const Figure& figure : figures_) {
            if (figure.Engine == line.Engine && figure.Work == work_) {
                points += std::to_string(left(figure.Size)) + "," + std::to_string(top(figure.*value)) + " ";
            }
        }
        out_ << "<polyline fill='none' stroke='" << line.Colour << "' stroke-width='2'" << style << " points='"
             << points << "'/>\n";
    }

    std::ostream& out_;
    std::span<const Figure> figures_;
    std::string work_;
    double x_;
    double y_;
    Unit unit_ = Unit::Microseconds;
    Decades sizes_{};
    Decades costs_{};
};

std::vector<std::string> worksOf(std::span<const Figure> figures) {
    std::vector<std::string> works;
    for (const Figure& figure : figures) {
        if (std::ranges::find(works, figure.Work) == works.end()) {
            works.push_back(figure.Work);
        }
    }
    return works;
}

} // namespace

std::string growthPlot(std::span<const Figure> figures) {
    const std::vector<std::string> works = worksOf(figures);
    const int rows = (static_cast<int>(works.size()) + c_PanelsInRow - 1) / c_PanelsInRow;
    const double width = c_PanelsInRow * c_PanelWidth;
    const double height = c_LegendHeight + rows * c_PanelHeight;
    std::ostringstream out;
    out << "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 " << width << " " << height
        << "' font-family='sans-serif' font-size='11'>\n<rect width='100%' height='100%' fill='white'/>\n";
    double x = c_Left;
    for (const Line& line : c_Lines) {
        out << "<path d='M" << x << " 18h24' stroke='" << line.Colour << "' stroke-width='2'/><text x='" << x + 30
            << "' y='22'>" << line.Title << "</text>\n";
        x += 110;
    }
    out << "<text x='" << x << "' y='22' fill='#666666'>dashed: the floor; across: lines of the document, documents of "
        << "the list</text>\n";
    for (std::size_t i = 0; i < works.size(); ++i) {
        const auto place = static_cast<int>(i);
        Panel(out, figures, works[i], place % c_PanelsInRow * c_PanelWidth,
              c_LegendHeight + place / c_PanelsInRow * c_PanelHeight)
            .draw();
    }
    out << "</svg>\n";
    return out.str();
}

} // namespace benchmark
