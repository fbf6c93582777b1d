// What the library read, described as trees of named fields (Description): a resource, a
// discipline's index, glossary words and word lists, grammar points and lists, the
// classification and package lists. The lumora tool prints these documents with --json; other
// hosts use the same functions, so that every host describes the same content the same way.
#pragma once

#include <lumora/describe/classification_description.h>
#include <lumora/describe/description.h>
#include <lumora/describe/glossary_description.h>
#include <lumora/describe/grammar_description.h>
#include <lumora/describe/index_description.h>
#include <lumora/describe/package_description.h>
#include <lumora/describe/printable_text.h>
#include <lumora/describe/resource_description.h>
