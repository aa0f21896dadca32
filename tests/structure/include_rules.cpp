// SPDX-License-Identifier: MIT
#include "structure/include_rules.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <optional>
#include <set>

namespace structure {
namespace {

struct Include {
    std::string name;
    bool angled;
};

std::optional<Include> includeOf(const std::string& line) {
    std::size_t at = line.find_first_not_of(" \t");
    if (at == std::string::npos || line[at] != '#') return std::nullopt;
    at = line.find_first_not_of(" \t", at + 1);
    if (at == std::string::npos || line.compare(at, 7, "include") != 0) return std::nullopt;
    at = line.find_first_of("<\"", at + 7);
    if (at == std::string::npos) return std::nullopt;
    const bool angled = line[at] == '<';
    const std::size_t end = line.find(angled ? '>' : '"', at + 1);
    if (end == std::string::npos) return std::nullopt;
    return Include{line.substr(at + 1, end - at - 1), angled};
}

std::vector<Include> includesOf(const SourceFile& file) {
    std::vector<Include> includes;
    for (const std::string& line : linesOf(file.text)) {
        if (auto include = includeOf(line)) includes.push_back(*include);
    }
    return includes;
}

// The floor a file stands on, from the ground up.
enum class Floor { kBase, kPlatform, kForms, kSubsystem, kProgram, kShell };

const std::set<std::string>& subsystems() {
    static const std::set<std::string> names{"core",  "contest", "grid",   "lookup", "bandsw", "setup",
                                             "keyer", "dvk",     "export", "print",  "editor", "maps"};
    return names;
}

// The folder below src/ that says where a file belongs: "base", "core", "shell/qt", or "shell" for the
// program itself.
std::string roomOf(const std::string& path) {
    const std::string below = path.substr(4);
    const std::size_t first = below.find('/');
    if (first == std::string::npos) return "";
    if (below.substr(0, first) != "shell") return below.substr(0, first);
    const std::size_t second = below.find('/', first + 1);
    return second == std::string::npos ? "shell" : below.substr(0, second);
}

std::optional<Floor> floorOf(const std::string& room) {
    static const std::map<std::string, Floor> floors{
        {"base", Floor::kBase},      {"shell/platform", Floor::kPlatform}, {"shell/forms", Floor::kForms},
        {"shell", Floor::kProgram},  {"shell/headless", Floor::kShell},    {"shell/linux", Floor::kShell},
        {"shell/qt", Floor::kShell},
    };
    if (subsystems().contains(room)) return Floor::kSubsystem;
    const auto found = floors.find(room);
    if (found == floors.end()) return std::nullopt;
    return found->second;
}

bool mayInclude(const std::string& from, const std::string& to) {
    if (from == to) return true;
    // What calls the operating system knows the services it gives and nothing of the program.
    if (from == "shell/linux") return to == "base" || to == "shell/platform";
    const Floor fromFloor = *floorOf(from);
    const Floor toFloor = *floorOf(to);
    // The window and the scripted operator both stand on the Linux part, and know nothing of each other.
    if (fromFloor == Floor::kShell && toFloor == Floor::kShell) return to == "shell/linux";
    return toFloor <= fromFloor;
}

bool isStandardHeader(const std::string& name) {
    return std::all_of(name.begin(), name.end(),
                       [](unsigned char c) { return std::islower(c) || std::isdigit(c) || c == '_'; });
}

bool isQtHeader(const std::string& name) {
    return name.starts_with('Q') || (name.starts_with('q') && name.ends_with(".h"));
}

bool mayIncludeAngled(const std::string& room, const std::string& name) {
    if (isStandardHeader(name)) return true;
    if (isQtHeader(name)) return room == "shell/qt";
    return room == "shell/linux";
}

using Graph = std::map<std::string, std::vector<std::string>>;

bool isGenerated(const std::string& name) {
    return name.ends_with(".moc") || name.starts_with("ui_") || name.starts_with("moc_");
}

// The file an include in quotes names: first beside the one that includes it, then from src/, as the compiler
// looks.
std::optional<std::string> resolve(const std::string& from, const std::string& name,
                                   const std::set<std::string>& paths) {
    const std::string beside =
        (std::filesystem::path(from).parent_path() / name).lexically_normal().generic_string();
    if (paths.contains(beside)) return beside;
    const std::string fromRoot = "src/" + name;
    if (paths.contains(fromRoot)) return fromRoot;
    return std::nullopt;
}

std::set<std::string> pathsOf(const std::vector<SourceFile>& files) {
    std::set<std::string> paths;
    for (const SourceFile& file : files) paths.insert(file.path);
    return paths;
}

bool isBound(const SourceFile& file) { return file.path.starts_with("src/") && isCpp(file.path); }

void checkInclude(const SourceFile& file, const Include& include, const std::set<std::string>& paths,
                  Faults& faults) {
    const std::string room = roomOf(file.path);
    if (include.angled) {
        if (!mayIncludeAngled(room, include.name))
            faults.push_back(file.path + " includes <" + include.name + ">");
        return;
    }
    if (isGenerated(include.name) && room == "shell/qt") return;
    const auto target = resolve(file.path, include.name, paths);
    if (!target) {
        faults.push_back(file.path + " includes \"" + include.name + "\", which is no file");
    } else if (const std::string to = roomOf(*target); floorOf(to) && !mayInclude(room, to)) {
        faults.push_back(file.path + " points up to " + *target);
    }
}

// Walks the includes depth first; a file met again while it is still open closes a circle.
class CircleSearch {
public:
    explicit CircleSearch(const Graph& graph) : graph_(graph) {}

    Faults run() {
        for (const auto& [path, includes] : graph_) visit(path);
        return faults_;
    }

private:
    void visit(const std::string& path) {
        const auto open = std::find(open_.begin(), open_.end(), path);
        if (open != open_.end()) {
            std::string circle;
            for (auto it = open; it != open_.end(); ++it) circle += *it + " > ";
            faults_.push_back(circle + path);
            return;
        }
        if (!seen_.insert(path).second) return;
        open_.push_back(path);
        if (const auto found = graph_.find(path); found != graph_.end()) {
            for (const std::string& next : found->second) visit(next);
        }
        open_.pop_back();
    }

    const Graph& graph_;
    std::vector<std::string> open_;
    std::set<std::string> seen_;
    Faults faults_;
};

}  // namespace

Faults includeFaults(const std::vector<SourceFile>& files) {
    Faults faults;
    const std::set<std::string> paths = pathsOf(files);
    for (const SourceFile& file : files) {
        if (!isBound(file)) continue;
        if (!floorOf(roomOf(file.path))) {
            faults.push_back(file.path + " lies in a folder that has no place among the layers");
            continue;
        }
        for (const Include& include : includesOf(file)) checkInclude(file, include, paths, faults);
    }
    return faults;
}

Faults includeCircles(const std::vector<SourceFile>& files) {
    const std::set<std::string> paths = pathsOf(files);
    Graph graph;
    for (const SourceFile& file : files) {
        if (!isBound(file)) continue;
        for (const Include& include : includesOf(file)) {
            if (include.angled) continue;
            if (const auto target = resolve(file.path, include.name, paths))
                graph[file.path].push_back(*target);
        }
    }
    return CircleSearch(graph).run();
}

}  // namespace structure
