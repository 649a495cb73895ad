#include "tests/fuzzing/FuzzTarget.h"
#include "tests/fuzzing/Mutations.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <set>
#include <vector>

namespace {

const std::filesystem::path fixtures = FUZZING_FIXTURES;

std::vector<std::string> inputsOf(const FuzzTarget& target) {
    std::vector<std::filesystem::path> files(std::filesystem::directory_iterator(fixtures / target.Name), {});
    std::ranges::sort(files);
    std::vector<std::string> inputs;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return inputs;
}

class Fuzzing : public testing::TestWithParam<const FuzzTarget*> {};

TEST_P(Fuzzing, EveryKeptInputIsReadRightly) {
    const std::vector<std::string> inputs = inputsOf(*GetParam());
    ASSERT_GT(inputs.size(), 5U);
    for (const std::string& input : inputs) {
        EXPECT_EQ(GetParam()->Judge(input), "") << input;
    }
}

TEST_P(Fuzzing, EveryDamagedInputIsReadRightly) {
    constexpr std::uint64_t c_Seed = 20260301;
    constexpr int c_Runs = 4000;
    const std::vector<std::string> inputs = inputsOf(*GetParam());
    Mutations mutations(c_Seed);
    for (int run = 0; run < c_Runs; ++run) {
        const std::string input = mutations.next(inputs);
        ASSERT_EQ(GetParam()->Judge(input), "") << "run " << run << " of seed " << c_Seed << ":\n"
                                                << testing::PrintToString(input);
    }
}

std::vector<const FuzzTarget*> targets() {
    std::vector<const FuzzTarget*> all;
    for (const FuzzTarget& target : fuzzTargets()) {
        all.push_back(&target);
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Readers, Fuzzing, testing::ValuesIn(targets()),
                         [](const auto& row) { return std::string(row.param->Name); });

TEST(FuzzingInputs, EveryFolderOfInputsBelongsToATarget) {
    std::set<std::string> folders;
    for (const auto& entry : std::filesystem::directory_iterator(fixtures)) {
        folders.insert(entry.path().filename());
    }
    std::set<std::string> names;
    for (const FuzzTarget& target : fuzzTargets()) {
        names.insert(target.Name);
    }
    EXPECT_EQ(folders, names);
}

TEST(Mutations, SameSeedGivesTheSameDamage) {
    const std::vector<std::string> texts = {"<a>one</a>", "<b>two</b>"};
    Mutations one(7);
    Mutations other(7);
    std::set<std::string> different;
    for (int run = 0; run < 200; ++run) {
        const std::string text = one.next(texts);
        ASSERT_EQ(text, other.next(texts));
        different.insert(text);
    }
    EXPECT_GT(different.size(), 150U) << "and nearly every one is another";
}

} // namespace
