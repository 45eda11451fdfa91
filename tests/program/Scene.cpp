#include "Scene.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "Screen.h"
#include "support/NeedsDisplay.h"

namespace zy::test {

namespace {
/// What every record of the program begins with.
constexpr std::string_view kProgramName = "zyGlobal\t";

const auto* const kNeedsDisplay = ::testing::AddGlobalTestEnvironment(new NeedsDisplay);

/// The lines as they are read from a text file, whatever ends them.
std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}
} // namespace

Scene::~Scene() {
    program_.reset();
    viewers_.clear();
}

void Scene::TearDown() {
    CheckPrinted();
}

void Scene::CheckPrinted() const {
    if (program_) {
        EXPECT_THAT(program_->Output(), printed);
    }
}

void Scene::Put(const std::string& fileName, const std::string& bytes) const {
    std::ofstream(outside.Settings() / fileName, std::ios::binary) << bytes;
}

std::string Scene::Get(const std::string& fileName) const {
    std::ifstream file(outside.Settings() / fileName, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool Scene::WaitForBytes(const std::string& fileName, const std::string& bytes) const {
    return WaitUntil([&] { return Get(fileName) == bytes; });
}

void Scene::StartViewer() {
    outside.AdmitViewers();
    const auto output = outside.Output("viewer" + std::to_string(viewers_.size()) + ".txt");
    viewers_.push_back(
        std::make_unique<Child>(std::vector<std::string>{ViewerPath()}, outside.environment, output));
    ASSERT_TRUE(WaitUntil([&] { return viewers_.back()->Output().find("listening") != std::string::npos; }))
        << viewers_.back()->Output();
}

void Scene::StopViewer() {
    ASSERT_EQ(viewers_.back()->Stop(), 0);
}

std::vector<std::string> Scene::Traces() const {
    std::vector<std::string> traces;
    for (const auto& viewer : viewers_) {
        for (const auto& line : LinesOf(viewer->Output())) {
            if (line.starts_with(kProgramName)) {
                traces.push_back(line.substr(kProgramName.size()));
            }
        }
    }
    return traces;
}

bool Scene::WaitForTrace(const std::string& line) const {
    return WaitUntil([&] {
        const auto lines = Traces();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    });
}

void Scene::Start(const std::vector<std::string>& arguments) {
    CheckPrinted();
    std::vector<std::string> command{ProgramPath()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    program_ = std::make_unique<Child>(command, outside.environment, outside.Output("program.txt"));
}

void Scene::Open(const std::string& argument, const std::string& title) {
    Start({argument});
    ASSERT_TRUE(WaitForWindow(title)) << Program().Output();
}

bool Scene::WaitForWindow(const std::string& title) const {
    return WaitUntil([&] { return program_->Status() || ActiveWindowTitle() == title; }) &&
           !program_->Status();
}

void Scene::KillProgram() {
    CheckPrinted();
    program_.reset();
}

void Scene::Close() {
    PressKeys("alt+F4");
    EXPECT_EQ(Program().WaitForEnd(), 0);
}

void Scene::ExpectOverflowAt(int x) {
    MoveActiveWindow(x, 100);
    PressKeys("alt+F4");
    ASSERT_TRUE(WaitForWindow("ZY Setup")) << Program().Output();
    PressKeys("Return");
    EXPECT_EQ(Program().WaitForEnd(), 1);
    EXPECT_EQ(outside.Registry(), "");
}

void Scene::PressFor(const std::string& keys, const std::string& trace) const {
    PressKeys(keys);
    EXPECT_TRUE(WaitForTrace(trace)) << keys << " did not lead to " << trace;
}

} // namespace zy::test
