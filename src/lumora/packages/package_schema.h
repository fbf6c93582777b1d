// The statements that create the three package tables of a database, in the order a new
// database gets them. The doubled and padded blanks of the last one are as the tables have
// always been created.
#pragma once

namespace lumora {

inline constexpr const char16_t* kCreatePackagesTable =
    u"CREATE TABLE t_Packages (f_IdPackage INTEGER CONSTRAINT x PRIMARY KEY, "
    u"f_DateLastGeneration DATETIME, f_Version INTEGER, f_IdString INTEGER)";
inline constexpr const char16_t* kCreateTranslationsTable =
    u"CREATE TABLE t_Translations (f_IdString INTEGER, f_IdLanguage INTEGER, CONSTRAINT x "
    u"PRIMARY KEY (f_IdString, f_IdLanguage), f_IdDataType INTEGER, f_String MEMO)";
inline constexpr const char16_t* kCreatePackagesResourcesTable =
    u"CREATE TABLE t_PackagesResources (f_IdPackage  INTEGER ,f_IdResource INTEGER ,f_IdItem     "
    u"INTEGER , CONSTRAINT x PRIMARY KEY (f_IdPackage, f_IdResource, f_IdItem))";

inline constexpr const char16_t* kCreatePackageTables[] = {
    kCreatePackagesTable, kCreateTranslationsTable, kCreatePackagesResourcesTable};

}  // namespace lumora
