// `lumora verify ROOT -d ID [--type T] [--quality 1,2,3] [--json]`: checks that every resource a
// discipline's index lists finds its media and the resource files it refers to.
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"
#include "resource_json.h"

namespace lumora::cli {
namespace {

namespace fs = std::filesystem;

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::optional<uint32_t> type;
  std::string quality = "1,2,3";
  bool json = false;
};

// The courses below a local root, from the names of its "C%04d" folders, in ascending order.
std::vector<uint32_t> CoursesBelow(const std::string& local_root) {
  std::vector<uint32_t> courses;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(local_root, error)) {
    const std::string name = entry.path().filename().string();
    if (name.size() != 5 || name[0] != 'C' || !entry.is_directory(error)) continue;
    if (!std::all_of(name.begin() + 1, name.end(), [](char c) { return std::isdigit(c); })) {
      continue;
    }
    courses.push_back(static_cast<uint32_t>(std::stoul(name.substr(1))));
  }
  std::sort(courses.begin(), courses.end());
  return courses;
}

bool HasResourceFile(const std::string& local_root, uint32_t type, uint32_t resource_id) {
  char relative[64];
  std::snprintf(relative, sizeof relative, "C%04u/r%07u/r%07u", CourseOf(resource_id), type,
                NumberOf(resource_id));
  std::error_code error;
  const std::string base = local_root + relative;
  return fs::is_regular_file(base + ".ars", error) || fs::is_regular_file(base + ".arh", error);
}

// An index holds resource numbers only: each is looked for in every course folder.
std::vector<uint32_t> ResourceIdsOf(const std::string& local_root, uint32_t type,
                                    const std::vector<uint32_t>& courses,
                                    std::vector<uint32_t> numbers) {
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  std::vector<uint32_t> ids;
  for (uint32_t number : numbers) {
    for (uint32_t course : courses) {
      const uint32_t id = MakeResourceId(course, number);
      if (HasResourceFile(local_root, type, id)) ids.push_back(id);
    }
  }
  return ids;
}

nlohmann::ordered_json Check(const ContentRequest& request, const std::string& local_root,
                             const ByteArray& quality, uint32_t type, uint32_t resource_id) {
  std::unique_ptr<ExerciseResource> resource = NewResource(type);
  std::string report;
  bool ok = lmGetResource(&request, resource_id, resource.get(), false);
  if (ok) {
    ok = resource->VerifyMedia(local_root, quality, report, resource_id);
  } else {
    report = "resource file could not be read";
  }
  return {{"type", type},
          {"resourceId", resource_id},
          {"ok", ok},
          {"report", PrintableText(report, kWindowsAnsi)}};
}

void PrintFailure(const nlohmann::ordered_json& result) {
  std::printf("type %u resource 0x%08x:\n", result["type"].get<uint32_t>(),
              result["resourceId"].get<uint32_t>());
  std::stringstream lines(result["report"].get<std::string>());
  std::string line;
  while (std::getline(lines, line)) std::printf("  %s\n", line.c_str());
}

void Run(const Options& options) {
  const ByteArray quality = ParseQualityFolders(options.quality);
  OpenedContent content(options.root, 0);
  const ContentRequest request = RequestFor(options.discipline);
  const OpenedDiscipline discipline = DisciplineFor(options.discipline);
  const ResourceIndex* index = lmGetResourceInfos(&request);
  if (index == nullptr) throw CommandFailure("discipline has no resource index");
  const std::vector<uint32_t> courses = CoursesBelow(discipline.localRoot);

  nlohmann::ordered_json results = nlohmann::ordered_json::array();
  uint32_t failures = 0;
  for (uint32_t type : index->types()) {
    if (options.type && *options.type != type) continue;
    const auto indexed = NumbersOf(*index->FindType(type));
    if (!indexed) continue;
    for (uint32_t id : ResourceIdsOf(discipline.localRoot, type, courses, indexed->numbers)) {
      results.push_back(Check(request, discipline.localRoot, quality, type, id));
      if (results.back()["ok"] == false) ++failures;
    }
  }
  if (options.json) {
    PrintJson(results);
  } else {
    for (const auto& result : results) {
      if (result["ok"] == false) PrintFailure(result);
    }
    std::printf("%zu resources checked, %u with problems\n", results.size(), failures);
  }
  if (failures != 0) throw CommandFailure(std::to_string(failures) + " resources with problems");
}

void AddVerifyCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("verify", "Check the media of a discipline's resources");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--type", options->type, "Check only this exercise type");
  command
      ->add_option("--quality", options->quality,
                   "Quality folders to check, each 1, 2 or 3 (default 1,2,3)")
      ->check(ParsedBy([](const std::string& text) { ParseQualityFolders(text); }));
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"verify", &AddVerifyCommand};

}  // namespace
}  // namespace lumora::cli
