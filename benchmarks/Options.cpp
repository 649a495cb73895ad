#include "benchmarks/Options.h"

#include <sstream>
#include <string_view>

namespace benchmark {

namespace {

std::vector<int> numbers(const std::string& list) {
    std::vector<int> found;
    std::istringstream in(list);
    for (std::string number; std::getline(in, number, ',');) {
        found.push_back(std::stoi(number));
    }
    return found;
}

} // namespace

std::vector<refhost::Engine> Options::engines() const {
    std::vector<refhost::Engine> wanted;
    for (const refhost::Engine engine : {refhost::Engine::SQLite, refhost::Engine::PostgreSQL}) {
        if (Engine.empty() || Engine == refhost::engineName(engine)) {
            wanted.push_back(engine);
        }
    }
    return wanted;
}

Options readOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view name = argv[i];
        const std::string value = argv[i + 1];
        if (name == "--sizes") {
            options.Sizes = numbers(value);
        } else if (name == "--rounds") {
            options.Rounds = std::stoi(value);
        } else if (name == "--clock") {
            options.Clock = value == "wall" ? CostClock::Kind::Wall : CostClock::Kind::Processor;
        } else if (name == "--engine") {
            options.Engine = value;
        } else if (name == "--plot") {
            options.Plot = value;
        }
    }
    return options;
}

} // namespace benchmark
