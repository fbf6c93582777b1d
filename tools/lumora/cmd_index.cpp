// `lumora index ROOT -d ID [--type T]`: what a discipline's index files hold, type by type in the
// order they were loaded.
#include <lumora/lumora.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/types/type1005_index.h>

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>
#include <optional>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"
#include "resource_json.h"
#include "tree_print.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::optional<uint32_t> type;
  bool json = false;
};

MediaRef WithUrlPath(const MediaRef& media, const ContentRequest& request) {
  MediaRef resolved(media.kind, media.folder, media.resource);
  lmGetMediaPath(&request, resolved, &resolved.path);
  return resolved;
}

void AddGroups(const ResourceGroups& groups, nlohmann::ordered_json& out) {
  out["sorted"] = groups.sorted();
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < groups.size(); ++i) {
    list.push_back({{"key", groups.keys()[i]}, {"resources", NumbersJson(groups.GroupAt(i))}});
  }
  out["groups"] = list;
}

// Description media are answered as web paths, as a host would show them.
void AddDescriptions(const Type2000Index& index, const ContentRequest& request,
                     nlohmann::ordered_json& out) {
  ResourceJsonWriter writer(TextCodePage(request.disciplineId));
  nlohmann::ordered_json entries = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < index.table.size(); ++i) {
    const Type2000Entry& entry = *index.table.ObjectAt(i);
    entries.push_back({{"number", index.table.KeyAt(i)},
                       {"attribute", entry.attribute},
                       {"titles", writer.Texts(entry.titles)},
                       {"media", MediaJson(WithUrlPath(entry.media, request))}});
  }
  out["entries"] = entries;
}

void AddElements(const Type1005Index& index, nlohmann::ordered_json& out) {
  nlohmann::ordered_json entries = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < index.table.size(); ++i) {
    const Type1005Entry& entry = *index.table.ObjectAt(i);
    entries.push_back({{"number", index.table.KeyAt(i)},
                       {"flagA", entry.flagA},
                       {"flagB", entry.flagB},
                       {"values", BytesJson(entry.values)}});
  }
  out["entries"] = entries;
}

nlohmann::ordered_json TypeJson(uint32_t type, const TypeIndex& index,
                                const ContentRequest& request) {
  nlohmann::ordered_json out{{"type", type}};
  if (const auto* groups = dynamic_cast<const GroupsIndex*>(&index)) {
    AddGroups(groups->groups, out);
  } else if (const auto* descriptions = dynamic_cast<const Type2000Index*>(&index)) {
    AddDescriptions(*descriptions, request, out);
  } else if (const auto* elements = dynamic_cast<const Type1005Index*>(&index)) {
    AddElements(*elements, out);
  } else if (const auto* plain = dynamic_cast<const PlainNumberIndex*>(&index)) {
    out["numbers"] = NumbersJson(plain->numbers);
  }
  return out;
}

// Groups as one "key K: numbers" line each; entries in the resources' human form.
nlohmann::ordered_json HumanIndex(const nlohmann::ordered_json& type) {
  nlohmann::ordered_json out = nlohmann::ordered_json::object();
  for (const auto& [key, field] : type.items()) {
    if (key == "type") continue;
    if (key != "groups") {
      out[key] = HumanForm(field);
      continue;
    }
    for (const auto& group : field) {
      out["key " + group["key"].dump()] = group["resources"];
    }
  }
  return out;
}

void Run(const Options& options) {
  OpenedContent content(options.root, 0);
  const ContentRequest request = RequestFor(options.discipline, kPathUrl);
  const ResourceIndex* index = lmGetResourceInfos(&request);
  if (index == nullptr) throw CommandFailure("discipline has no resource index");
  nlohmann::ordered_json types = nlohmann::ordered_json::array();
  for (uint32_t type : index->types()) {
    if (options.type && *options.type != type) continue;
    types.push_back(TypeJson(type, *index->FindType(type), request));
  }
  if (options.json) {
    PrintJson({{"types", types}});
  } else {
    for (const auto& type : types) {
      std::cout << "type " << type["type"].get<uint32_t>() << '\n';
      PrintTree(std::cout, HumanIndex(type), 2);
    }
  }
  if (options.type && types.empty()) {
    throw CommandFailure("discipline " + std::to_string(options.discipline) +
                         " has no index of type " + std::to_string(*options.type));
  }
}

void AddIndexCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("index", "Show a discipline's resource index");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--type", options->type, "Show only this exercise type");
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"index", &AddIndexCommand};

}  // namespace
}  // namespace lumora::cli
