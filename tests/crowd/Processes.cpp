#include "tests/crowd/Processes.h"

#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace crowd {

namespace {

std::ifstream openOf(pid_t process, const char* name) {
    std::ifstream file("/proc/" + std::to_string(process) + "/" + name);
    if (!file) {
        throw std::runtime_error("process " + std::to_string(process) + " is gone");
    }
    return file;
}

void addMemory(Burden& burden, pid_t process) {
    std::ifstream file = openOf(process, "smaps_rollup");
    std::string line;
    std::getline(file, line); // the addresses
    while (std::getline(file, line)) {
        std::istringstream words(line);
        std::string figure;
        double kilobytes = 0;
        words >> figure >> kilobytes;
        if (figure == "Pss:") {
            burden.Megabytes += kilobytes / 1024;
        } else if (figure == "Pss_Anon:") {
            burden.PrivateMegabytes += kilobytes / 1024;
        }
    }
}

pid_t parentOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string line;
    std::getline(file, line);
    std::istringstream behindName(line.substr(line.rfind(')') + 1));
    char state = 0;
    pid_t parent = 0;
    behindName >> state >> parent;
    return parent;
}

} // namespace

Burden burdenOf(const std::vector<pid_t>& processes) {
    Burden burden;
    for (const pid_t process : processes) {
        addMemory(burden, process);
        double nanoseconds = 0;
        openOf(process, "schedstat") >> nanoseconds;
        burden.ProcessorSeconds += nanoseconds / 1e9;
    }
    return burden;
}

std::vector<pid_t> familyOf(pid_t process) {
    std::vector<pid_t> family{process};
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (std::isdigit(static_cast<unsigned char>(name.front())) != 0 && parentOf(std::stoi(name)) == process) {
            family.push_back(std::stoi(name));
        }
    }
    return family;
}

} // namespace crowd
