#include <zel/icu/DataDirectory.h>

#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <string>
#include <unicode/localpointer.h>
#include <unicode/putil.h>
#include <unicode/udata.h>
#include <unicode/ures.h>

namespace {

namespace fs = std::filesystem;

// An object of this copy of the library: the address of an exported one could be that of another copy.
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

std::string findDataDirectory()
{
    const fs::path beside = libraryDirectory();
    // The build tree and most installed trees; then installed trees with another depth of library directory.
    for (const char* way : {"../share/zel/icu", ZEL_ICU_DATA_FROM_LIBRARY}) {
        std::error_code error;
        const fs::path directory = (beside / way).lexically_normal();
        if (!beside.empty() && fs::is_directory(directory / U_ICUDATA_NAME, error)) {
            return directory.string();
        }
    }
    return {};
}

const std::string& foundDirectory()
{
    static const std::string directory = findDataDirectory();
    return directory;
}

__attribute__((constructor)) void pointIcuToDataDirectory()
{
    // ICU answers with ICU_DATA here where that is set.
    if (*u_getDataDirectory() == '\0' && !foundDirectory().empty()) {
        u_setDataDirectory(foundDirectory().c_str());
    }
}

} // namespace

namespace zel::icudata {

const char* dataDirectory() noexcept
{
    return foundDirectory().c_str();
}

bool isDataDirectoryInUse() noexcept
{
    return !foundDirectory().empty() && foundDirectory() == u_getDataDirectory();
}

bool hasPhraseTables() noexcept
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUResourceBundlePointer root(ures_openDirect(nullptr, "root", &status));
    const icu::LocalUResourceBundlePointer units(ures_getByKey(root.getAlias(), "units", nullptr, &status));
    return U_SUCCESS(status) && ures_getType(units.getAlias()) == URES_TABLE;
}

} // namespace zel::icudata
