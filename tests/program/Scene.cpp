#include "Scene.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>

#include <unistd.h>

namespace zy::test {

namespace fs = std::filesystem;

namespace {
/// What every record of the program begins with.
constexpr std::string_view kProgramName = "zyGlobal\t";

/// A file's bytes; empty when there is none.
std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
} // namespace

Scene::Scene() {
    std::string pattern = (fs::temp_directory_path() / "zyProgramXXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    fs::create_directory(folder_ / "system");
    environment.set = {{"ZYSETUP_SYSTEM_DIR", (folder_ / "system").string()},
                       {"XDG_RUNTIME_DIR", folder_.string()},
                       {"XDG_DATA_HOME", (folder_ / "data").string()},
                       {"XDG_CONFIG_HOME", (folder_ / "config").string()},
                       {"NO_AT_BRIDGE", "1"},
                       {"LC_ALL", "C.UTF-8"}};
    environment.unset = {"DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY"};
}

Scene::~Scene() {
    program_.reset();
    viewers_.clear();
    bus_.reset();
    fs::remove_all(folder_);
}

void Scene::PutRules(const std::string& bytes) {
    std::ofstream(folder_ / "system" / "ZYRules.sys", std::ios::binary) << bytes;
}

std::string Scene::Rules() const {
    return Content(folder_ / "system" / "ZYRules.sys");
}

std::string Scene::Registry() const {
    return Content(folder_ / "config" / "zysetup" / "registry.ini");
}

std::vector<std::string> Scene::FileNames() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_ / "system")) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

void Scene::StartBus() {
    bus_ = std::make_unique<Child>(
        std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--print-address=1"}, environment,
        folder_ / "bus.txt");
    ASSERT_TRUE(WaitUntil([&] { return bus_->Output().ends_with('\n'); })) << bus_->Output();
    std::string address = bus_->Output();
    address.pop_back();
    std::erase(environment.unset, "DBUS_SESSION_BUS_ADDRESS");
    environment.set["DBUS_SESSION_BUS_ADDRESS"] = address;
}

void Scene::StartViewer() {
    const auto output = folder_ / ("viewer" + std::to_string(viewers_.size()) + ".txt");
    viewers_.push_back(std::make_unique<Child>(std::vector<std::string>{ZY_VIEWER}, environment, output));
    ASSERT_TRUE(WaitUntil([&] { return viewers_.back()->Output().find("listening") != std::string::npos; }))
        << viewers_.back()->Output();
}

void Scene::StopViewer() {
    viewers_.back()->Signal(SIGINT);
    ASSERT_EQ(viewers_.back()->WaitForEnd(), 0);
}

std::vector<std::string> Scene::Traces() const {
    std::vector<std::string> lines;
    for (const auto& viewer : viewers_) {
        std::istringstream output(viewer->Output());
        for (std::string line; std::getline(output, line);) {
            if (line.starts_with(kProgramName)) {
                lines.push_back(line.substr(kProgramName.size()));
            }
        }
    }
    return lines;
}

bool Scene::WaitForTrace(const std::string& line) const {
    return WaitUntil([&] {
        const auto lines = Traces();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    });
}

void Scene::Start(const std::vector<std::string>& arguments) {
    std::vector<std::string> command{ZY_PROGRAM};
    command.insert(command.end(), arguments.begin(), arguments.end());
    program_ = std::make_unique<Child>(command, environment, folder_ / "program.txt");
}

bool Scene::WaitForWindow(const std::string& title) const {
    WaitUntil([&] {
        return program_->Status() ||
               Printed("xdotool getactivewindow getwindowname 2>/dev/null") == title + "\n";
    });
    return !program_->Status();
}

void Scene::Press(const std::string& keys) {
    Printed("xdotool key --delay 60 " + keys);
}

void Scene::PressFor(const std::string& keys, const std::string& trace) const {
    Press(keys);
    EXPECT_TRUE(WaitForTrace(trace)) << keys << " did not lead to " << trace;
}

void Scene::TypeText(const std::string& text) {
    Printed("xdotool type --delay 40 '" + text + "'");
}

} // namespace zy::test
