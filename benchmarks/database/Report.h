#pragma once

#include <functional>
#include <string>
#include <vector>

namespace benchmark {

/// In what a cost is counted.
enum class Unit { Microseconds, Bytes };

/// What one kind of work costs at one size of the document or list.
struct Figure {
    std::string Engine;
    std::string Work;
    int Size;     ///< Lines of the document, or documents of the list.
    double Cost;  ///< For one line or cell (a list, a call: for the whole), the median of the rounds.
    double Floor; ///< What the floor costs, likewise; where there is none, what the cost should not be above.
    Unit CountedIn = Unit::Microseconds;
    double Slowest = 0; ///< The dearest of all rounds; 0 where it is not told.
};

/// Collects figures and shows them.
class Report {
public:
    /// What stands above the lines that `add` prints.
    static void printHeadings();
    void add(Figure figure);

    /// All figures, then how the engines compare and how the costs grow.
    void print() const;
    const std::vector<Figure>& figures() const { return figures_; }

private:
    void printComparison() const;
    void printGrowth() const;
    const Figure* find(const std::string& engine, const std::string& work, int size) const;

    std::vector<Figure> figures_;
};

/// The work and its floor in turn, as often as there are rounds. Each gives the microseconds of a round, so that what
/// has to be prepared for it does not count.
struct Contest {
    std::function<double()> Work;
    std::function<double()> Floor;
};
struct Medians {
    double Work;
    double Floor;
};
Medians compete(const Contest& contest, int rounds);

double median(std::vector<double> figures);

} // namespace benchmark
