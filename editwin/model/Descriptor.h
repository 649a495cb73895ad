#pragma once

#include <streambuf>
#include <utility>
#include <vector>

namespace melvark {

/// Owns a file descriptor of the system.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : FNumber(number) {}
    Descriptor(Descriptor&& other) noexcept : FNumber(std::exchange(other.FNumber, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor();

    bool IsOpen() const { return FNumber >= 0; }
    int Number() const { return FNumber; }
    /// False when the system reports late that what was written is lost; the descriptor is gone all the same.
    bool Close();

private:
    int FNumber;
};

/// Writes through to a descriptor, block by block as it gets them. A write that fails throws std::system_error.
class DescriptorOutput : public std::streambuf {
public:
    explicit DescriptorOutput(const Descriptor& file) : FFile(file) {}

protected:
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int_type overflow(int_type character) override;

private:
    const Descriptor& FFile;
};

/// Reads from a descriptor. A read that fails throws std::system_error.
class DescriptorInput : public std::streambuf {
public:
    explicit DescriptorInput(const Descriptor& file);

protected:
    int_type underflow() override;

private:
    const Descriptor& FFile;
    std::vector<char> FBlock;
};

} // namespace melvark
