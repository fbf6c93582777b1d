// `lumora resource ROOT -d ID --type T --id RID [--path-kind K] [--order N] [--no-media]`: one
// resource decoded, with the paths of its media.
#include <lumora/descriptions.h>
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <cstdio>
#include <iostream>
#include <memory>

#include "commands.h"
#include "content_args.h"
#include "human_form.h"
#include "printable_text.h"
#include "tree_print.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  uint32_t type = 0;
  std::string id;
  std::string pathKind = "url";
  uint32_t order = 1;
  bool noMedia = false;
  bool json = false;
};

void Run(const Options& options) {
  const uint32_t resource_id = ParseNumber(options.id, "resource id");
  std::unique_ptr<ExerciseResource> resource = NewResource(options.type);
  if (!resource) {
    throw CommandFailure("no resource class for type " + std::to_string(options.type));
  }
  OpenedContent content(options.root, 0);
  const ContentRequest request =
      RequestFor(options.discipline, ParsePathKind(options.pathKind), options.order);
  const LoadResult read = ReadResource(&request, resource_id, resource.get(), !options.noMedia);
  const bool ok = read.ok();
  const Description out = ok ? DescribeResource(*resource, resource_id, options.discipline)
                             : DescribeUnreadResource(options.type, resource_id,
                                                      FailureText(options.root, read.failure()));
  if (out.is_null()) {
    throw CommandFailure("no description of resources of type " + std::to_string(options.type));
  }

  if (options.json) {
    PrintJson(out);
  } else if (ok) {
    std::printf("resource 0x%08x: type %u, course %u, number %u\n", resource_id, options.type,
                ResourceCourse(resource_id), ResourceNumber(resource_id));
    Description fields = out;
    for (const char* head : {"ok", "type", "resourceId", "course", "number", "allMedia"}) {
      fields.erase(head);
    }
    PrintTree(std::cout, HumanForm(fields), 2);
  }
  if (!ok) throw CommandFailure(FailureText(options.root, read.failure()));
}

void AddResourceCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("resource", "Decode one resource and resolve its media");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--type", options->type, "Exercise type")->required();
  command->add_option("--id", options->id, "Resource id, decimal or 0x-hex")
      ->required()
      ->check(NumberText("resource id"));
  command->add_option("--path-kind", options->pathKind, "url (default) or unc")
      ->check(AnsweredPathKind());
  command->add_option("--order", options->order, "Quality folder order 1, 2 or 3")
      ->check(CLI::Range(1u, 3u));
  command->add_flag("--no-media", options->noMedia, "Do not resolve media paths");
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"resource", &AddResourceCommand};

}  // namespace
}  // namespace lumora::cli
