// The walls of the tree: who may include whom, and where the toolkit may be seen.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kRoot = KESTRI_SOURCE_DIR;

// Each layer with the layers whose headers it may include. A layer may always include its own.
const std::map<std::string, std::set<std::string>> kAllowed = {
    {"platform", {}},
    {"platform/posix", {"platform", "shell/common"}},
    {"platform/qt", {"platform", "platform/posix", "shell/common"}},
    {"shell/common", {"platform"}},
    {"document/edit_control", {"platform", "shell/common"}},
    {"document", {"platform", "shell/common", "document/edit_control"}},
    {"tags", {"platform", "shell/common", "document", "document/edit_control"}},
    {"browse", {"platform", "shell/common", "document", "document/edit_control"}},
    {"search", {"platform", "shell/common", "document", "document/edit_control"}},
    {"run", {"platform", "shell/common"}},
    {"ui", {"platform", "platform/qt", "shell/common", "document", "document/edit_control"}},
    {"document/forms",
     {"platform", "platform/qt", "shell/common", "document", "document/edit_control", "ui"}},
    {"tags/forms",
     {"platform", "platform/qt", "shell/common", "document", "document/edit_control", "tags", "ui"}},
    {"browse/forms",
     {"platform", "platform/qt", "shell/common", "document", "document/edit_control", "browse", "ui"}},
    {"search/forms",
     {"platform", "platform/qt", "shell/common", "document", "document/edit_control", "search", "ui"}},
    {"shell/window",
     {"platform", "shell/common", "document", "document/edit_control", "run", "search", "tags"}},
    {"shell/startup", {"platform", "shell/common"}},
    {"shell/startup/forms",
     {"platform", "platform/posix", "platform/qt", "shell/common", "shell/window", "shell/startup",
      "shell/forms", "document", "ui"}},
    {"shell/forms",
     {"platform", "platform/qt", "shell/common", "shell/window", "browse", "browse/forms", "document",
      "document/edit_control", "document/forms", "run", "search", "search/forms", "tags", "tags/forms",
      "ui"}},
};

const std::set<std::string> kToolkitLayers = {"platform/qt",  "ui",          "document/forms",
                                              "tags/forms",   "shell/forms", "shell/startup/forms",
                                              "browse/forms", "search/forms"};

struct Include {
  fs::path file;  // relative to the root
  std::string target;
  bool toolkit = false;
};

// The longest known layer that holds the path; empty when there is none.
std::string LayerOf(const std::string& path) {
  std::string best;
  for (const auto& [layer, allowed] : kAllowed) {
    if (path.starts_with(layer + "/") && layer.size() > best.size()) best = layer;
  }
  return best;
}

std::vector<fs::path> SourceFiles() {
  std::vector<fs::path> files;
  for (const char* top :
       {"platform", "shell", "document", "tags", "search", "browse", "media", "run", "settings", "ui"}) {
    if (!fs::exists(kRoot / top)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(kRoot / top)) {
      const std::string extension = entry.path().extension();
      if (extension == ".cpp" || extension == ".hpp") files.push_back(entry.path().lexically_relative(kRoot));
    }
  }
  return files;
}

std::vector<Include> IncludesOf(const fs::path& file) {
  static const std::regex kLine(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
  std::vector<Include> includes;
  std::ifstream in(kRoot / file);
  for (std::string line; std::getline(in, line);) {
    std::smatch match;
    if (!std::regex_search(line, match, kLine)) continue;
    const std::string target = match[2];
    const bool toolkit = match[1] == "<" && target.size() > 1 && target[0] == 'Q' &&
                         std::isupper(static_cast<unsigned char>(target[1])) != 0;
    includes.push_back({file, target, toolkit || target.starts_with("Qt")});
  }
  return includes;
}

std::vector<Include> AllIncludes() {
  std::vector<Include> all;
  for (const fs::path& file : SourceFiles()) {
    const auto includes = IncludesOf(file);
    all.insert(all.end(), includes.begin(), includes.end());
  }
  return all;
}

TEST(Layering, TheToolkitIsSeenOnlyByFormsTheToolkitFolderAndItsAdapters) {
  for (const Include& include : AllIncludes()) {
    if (!include.toolkit) continue;
    EXPECT_TRUE(kToolkitLayers.contains(LayerOf(include.file.string())))
        << include.file << " includes " << include.target;
  }
}

TEST(Layering, EveryFolderIncludesOnlyWhatStandsBelowIt) {
  for (const Include& include : AllIncludes()) {
    const std::string to = LayerOf(include.target);
    if (to.empty()) continue;
    const std::string from = LayerOf(include.file.string());
    ASSERT_FALSE(from.empty()) << include.file << " lies in no known layer";
    EXPECT_TRUE(from == to || kAllowed.at(from).contains(to))
        << include.file << " includes " << include.target;
  }
}

TEST(Layering, ProjectHeadersAreIncludedByTheirWholePath) {
  for (const Include& include : AllIncludes()) {
    const bool quoted = !include.target.ends_with(".hpp") || include.target.find('/') != std::string::npos;
    EXPECT_TRUE(quoted) << include.file << " includes " << include.target;
  }
}

TEST(Layering, TheAllowedDependenciesHaveNoCircle) {
  std::set<std::string> done;
  while (done.size() < kAllowed.size()) {
    const auto next = std::find_if(kAllowed.begin(), kAllowed.end(), [&](const auto& layer) {
      return !done.contains(layer.first) &&
             std::all_of(layer.second.begin(), layer.second.end(),
                         [&](const std::string& below) { return done.contains(below); });
    });
    ASSERT_NE(next, kAllowed.end()) << "a circle among the layers that are left";
    done.insert(next->first);
  }
}

TEST(Layering, TheTestSeesTheTree) {
  EXPECT_GT(SourceFiles().size(), 30u);
  EXPECT_EQ(LayerOf("document/edit_control/edit_control.hpp"), "document/edit_control");
  EXPECT_EQ(LayerOf("vector"), "");
}

}  // namespace
