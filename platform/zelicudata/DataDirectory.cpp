// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include <zel/icu/DataDirectory.h>

#include "BundleList.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <string>
#include <unicode/localpointer.h>
#include <unicode/putil.h>
#include <unicode/udata.h>
#include <unicode/ures.h>

namespace {

namespace fs = std::filesystem;
using zel::icudata::BundleList;

// In this copy of the library: an exported object could be that of another copy.
const char anchor = 0;

fs::path libraryDirectory()
{
    Dl_info library{};
    std::error_code error;
    if (dladdr(&anchor, &library) == 0 || library.dli_fname == nullptr) {
        return {};
    }
    return fs::canonical(library.dli_fname, error).parent_path();
}

// Checks bundles: the start of their list when the library is loaded, all of them before the first use.
using Check = std::string (*)(const fs::path& bundles);

// The directory and the reason why its bundles cannot be used; empty if they can.
std::string problemOf(const fs::path& bundles, Check check)
{
    const std::string problem = check(bundles);
    return problem.empty() ? problem : bundles.string() + ": " + problem;
}

// The directory next to the library, or the reason why none can be used.
struct Found
{
    std::string directory;
    std::string problem;
};

Found findDataDirectory(Check check)
{
    const fs::path beside = libraryDirectory();
    // First the build tree and most installed trees, then installed trees with a deeper library directory.
    for (const char* way : {"../share/zel/icu", ZEL_ICU_DATA_FROM_LIBRARY}) {
        std::error_code error;
        const fs::path directory = (beside / way).lexically_normal();
        if (!beside.empty() && fs::is_directory(directory / U_ICUDATA_NAME, error)) {
            const std::string problem = problemOf(directory / U_ICUDATA_NAME, check);
            return problem.empty() ? Found{directory.string(), {}} : Found{{}, problem};
        }
    }
    return {{}, "no " U_ICUDATA_NAME " in " + (beside / "../share/zel/icu").lexically_normal().string()};
}

// The result of the check when the library was loaded.
const Found& found()
{
    static const Found once = findDataDirectory(&BundleList::problemOfStart);
    return once;
}

const Found& checked()
{
    static const Found once = findDataDirectory(&BundleList::problemOf);
    return once;
}

void report(const std::string& problem)
{
    std::fprintf(stderr, "libzelicudata: %s; relative dates are without phrases\n", problem.c_str());
}

// The reason why a directory from ICU_DATA or the application cannot be used. One without bundles.list is not
// validated.
std::string problemOfNamed(const fs::path& directory, Check check)
{
    std::error_code error;
    const fs::path bundles = directory / U_ICUDATA_NAME;
    return fs::exists(bundles / BundleList::fileName, error) ? problemOf(bundles, check) : std::string();
}

bool leaveDamagedDirectory()
{
    const std::string used = u_getDataDirectory();
    const std::string problem = used.empty() ? used : problemOfNamed(used, &BundleList::problemOf);
    if (!problem.empty()) {
        report(problem);
        u_setDataDirectory("");
    }
    return problem.empty();
}

// The directory from ICU_DATA or the application.
std::string namedDirectory()
{
    const std::string named = u_getDataDirectory();
    // The caller of a program with raised privileges must not choose its data. ICU itself does not check this.
    const char* const variable = std::getenv("ICU_DATA");
    const bool isIgnored = variable != nullptr && named == variable && ::secure_getenv("ICU_DATA") == nullptr;
    return isIgnored ? std::string() : named;
}

// The package with other bundles than those that ICU has open; empty if there is none.
std::string findPhrasePackage()
{
    if (!zel::icudata::isDataDirectoryInUse() || zel::icudata::hasPhraseTables()) {
        return {};
    }
    const std::string bundles = found().directory + "/" U_ICUDATA_NAME;
    if (!BundleList::hasPool(bundles)) {
        report("ICU has opened its own data before this library was loaded");
        return {};
    }
    // ICU searches a package in the directory of its name, which has the pool, then in its own directory, which has the
    // bundles.
    return bundles + '/' + BundleList::packageName;
}

__attribute__((constructor)) void pointIcuToDataDirectory()
{
    const std::string named = namedDirectory();
    const std::string problem = named.empty() ? found().problem : problemOfNamed(named, &BundleList::problemOfStart);
    if (!problem.empty()) {
        report(problem);
    }
    if (named.empty() || !problem.empty()) {
        u_setDataDirectory(named.empty() ? found().directory.c_str() : "");
    }
}

} // namespace

namespace zel::icudata {

const char* dataDirectory() noexcept
{
    return checked().directory.c_str();
}

const char* dataDirectoryProblem() noexcept
{
    return checked().problem.c_str();
}

void checkDataDirectory() noexcept
{
    [[maybe_unused]] static const bool isSound = leaveDamagedDirectory();
}

bool isDataDirectoryInUse() noexcept
{
    checkDataDirectory();
    return !found().directory.empty() && found().directory == u_getDataDirectory();
}

bool hasPhraseTables() noexcept
{
    checkDataDirectory();
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUResourceBundlePointer root(ures_openDirect(nullptr, "root", &status));
    const icu::LocalUResourceBundlePointer units(ures_getByKey(root.getAlias(), "units", nullptr, &status));
    return U_SUCCESS(status) && ures_getType(units.getAlias()) == URES_TABLE;
}

const char* phrasePackage() noexcept
{
    static const std::string package = findPhrasePackage();
    return package.empty() ? nullptr : package.c_str();
}

} // namespace zel::icudata
