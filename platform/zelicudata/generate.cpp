// zel-icudata-gen <directory>: writes ICU's locale bundles, with phrase tables added, to <directory>/<icudtNNl>.

#include "BundleList.h"
#include "PhraseTables.h"
#include "ResourceBundleWriter.h"
#include "StockBundles.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

namespace fs = std::filesystem;
using namespace zel::icudata;

bool writeFile(const fs::path& path, const std::string& bytes, std::string& error)
{
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) {
        error = path.string() + ": cannot be written";
    }
    return error.empty();
}

bool writeBundle(const std::string& name, const fs::path& directory, StockBundles& bundles, PhraseTables& phrases,
                 BundleList& list, std::string& error)
{
    const ResourceBundleReader* bundle = bundles.find(name, error);
    if (bundle == nullptr) {
        error = error.empty() ? name + ": listed by ICU, but not there" : error;
        return false;
    }
    const auto tables = phrases.forLocale(name, error);
    if (!tables) {
        return false;
    }
    const auto copy = ResourceBundleWriter::write(*bundle, *tables, error);
    if (!copy) {
        error.insert(0, name + ": ");
        return false;
    }
    list.add(name + ".res", *copy);
    return writeFile(directory / (name + ".res"), *copy, error);
}

bool writeBundles(const fs::path& directory, std::string& error)
{
    StockBundles bundles;
    PhraseTables phrases(bundles);
    BundleList list;
    for (const std::string& name : StockBundles::names()) {
        if (!writeBundle(name, directory, bundles, phrases, list, error)) {
            return false;
        }
    }
    const ResourceBundleReader* const pool = bundles.find("pool", error);
    return writeFile(directory / BundleList::fileName,
                     list.toFile(pool != nullptr ? pool->index(IndexWord::PoolChecksum) : 0), error);
}

// Written aside and put in place when it is complete: a directory under the final name is always whole, and programs
// that run keep the files that they have open.
bool generate(const fs::path& directory, std::string& error)
{
    const fs::path final = directory / U_ICUDATA_NAME;
    const fs::path unfinished = directory / U_ICUDATA_NAME ".unfinished";
    fs::remove_all(unfinished);
    fs::create_directories(unfinished);
    if (!writeBundles(unfinished, error)) {
        return false;
    }
    fs::remove_all(final);
    fs::rename(unfinished, final);
    return true;
}

int run(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: zel-icudata-gen <directory>\n";
        return EXIT_FAILURE;
    }
    // The data to copy is ICU's own, whatever data the person who builds uses otherwise.
    unsetenv("ICU_DATA"); // NOLINT(concurrency-mt-unsafe): the only thread
    std::string error;
    if (!generate(argv[1], error)) {
        std::cerr << "zel-icudata-gen: " << error << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const std::exception& exception) {
        std::cerr << "zel-icudata-gen: " << exception.what() << '\n';
        return EXIT_FAILURE;
    }
}
