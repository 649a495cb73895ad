#include "editwin/model/Descriptor.h"

#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <istream>
#include <ostream>
#include <sstream>
#include <system_error>

namespace {

using melvark::Descriptor;
using melvark::DescriptorInput;
using melvark::DescriptorOutput;

class DescriptorTest : public testing::Test {
protected:
    Descriptor opened(int flags) const { return Descriptor(open(path_.c_str(), flags | O_CLOEXEC, 0600)); }
    std::string content() const {
        std::ostringstream text;
        text << std::ifstream(path_, std::ios::binary).rdbuf();
        return text.str();
    }

    TemporaryFolder folder_{"descriptor"};
    std::filesystem::path path_ = folder_.path() / "file";
};

/// With the way in which streams ask for what was kept back, of which there is nothing here.
class FlushedOutput : public DescriptorOutput {
public:
    using DescriptorOutput::DescriptorOutput;
    using DescriptorOutput::overflow;
};

TEST_F(DescriptorTest, OutputWritesThroughWhatItGetsAsBlocksAndAsSingleCharacters) {
    const Descriptor file = opened(O_WRONLY | O_CREAT);
    DescriptorOutput output(file);
    std::ostream stream(&output);

    stream.put('a').put('\xFF'); // the latter is not the end of anything
    stream << "bc";

    EXPECT_EQ(content(), "a\xFF"
                         "bc");
    EXPECT_TRUE(stream.good());
}

TEST_F(DescriptorTest, OutputHasNothingToFlush) {
    const Descriptor file = opened(O_WRONLY | O_CREAT);
    FlushedOutput output(file);
    using traits = FlushedOutput::traits_type;
    EXPECT_FALSE(traits::eq_int_type(output.overflow(traits::eof()), traits::eof()));
    EXPECT_EQ(content(), "");
}

TEST_F(DescriptorTest, InputGivesWhatIsThereAndThenItsEnd) {
    std::ofstream(path_) << "first\nsecond";
    const Descriptor file = opened(O_RDONLY);
    DescriptorInput input(file);
    std::istream stream(&input);
    std::string line;
    EXPECT_TRUE(std::getline(stream, line) && line == "first");
    EXPECT_TRUE(std::getline(stream, line) && line == "second");
    EXPECT_FALSE(std::getline(stream, line));
}

TEST_F(DescriptorTest, WhatTheSystemRefusesIsThrown) {
    const Descriptor none;
    DescriptorOutput output(none);
    DescriptorInput input(none);
    EXPECT_THROW(output.sputn("a", 1), std::system_error);
    EXPECT_THROW(input.sgetc(), std::system_error);
}

TEST_F(DescriptorTest, TheNumberIsGivenBackOnceByItsLastOwner) {
    Descriptor first = opened(O_WRONLY | O_CREAT);
    const int number = first.Number();
    Descriptor second = std::move(first);
    first = std::move(second);
    ASSERT_EQ(first.Number(), number);
    EXPECT_TRUE(first.Close());
    EXPECT_FALSE(first.IsOpen());
    EXPECT_TRUE(first.Close()) << "what is closed is closed";
    EXPECT_EQ(fcntl(number, F_GETFD), -1);
}

} // namespace
