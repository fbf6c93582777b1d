// The second include, for programs that inspect, convert, rebuild or write content rather than show
// it; the lumora tool uses nothing else. Beside lumora.h's entry points it gives: the integrity
// check of a whole content root, the descriptions of what was read (what --json prints), the open
// disciplines' roots and why their glossary, grammar or the classification did not load, the
// exercise types and resource numbering, index rebuilds, set-file and glossary-order checks and
// rebuilds, the package export and its queries, text labels of resources, code pages and UTF-8,
// checksums, the language table, INI files, atomic writes, the internal log and the sample content
// writer.
#pragma once

#include <lumora/check/content_check.h>
#include <lumora/check/media_verification.h>
#include <lumora/describe/describe.h>
#include <lumora/frame/load_failures.h>
#include <lumora/frame/opened_disciplines.h>
#include <lumora/frame/package_queries.h>
#include <lumora/frame/resource_reading.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/set_file_check.h>
#include <lumora/lumora.h>
#include <lumora/packages/export_folder.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/codepage_stream.h>
#include <lumora/platform/utf8.h>
#include <lumora/resources/context_description.h>
#include <lumora/resources/context_labels.h>
#include <lumora/resources/index_rebuild.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/text_context.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/sample/sample_content.h>
#include <lumora/support/crc32.h>
#include <lumora/support/internal_log.h>
#include <lumora/support/language_table.h>
#include <lumora/support/profile_file.h>
