// The export frame: the dynamic symbol table of libtavs holds exactly the
// names of the export table, all of them from the list of 2,157 API names,
// each entry a 16-byte stub in sorted order, and nothing else is exported.
#include <elf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tavs.h"

namespace {

std::vector<std::string> read_lines(const char* path)
{
    std::ifstream in(path);
    std::vector<std::string> out;
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) out.push_back(line);
    return out;
}

struct DynSym {
    std::string name;
    uint64_t value;
    uint64_t size;
    unsigned type;
    unsigned bind;
    bool defined;
};

// Reads the .dynsym section of an ELF64 shared object.
std::vector<DynSym> read_dynsym(const char* path)
{
    std::ifstream in(path, std::ios::binary);
    std::vector<char> f((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<DynSym> out;
    if (f.size() < sizeof(Elf64_Ehdr)) return out;
    auto* eh = reinterpret_cast<const Elf64_Ehdr*>(f.data());
    auto* sh = reinterpret_cast<const Elf64_Shdr*>(f.data() + eh->e_shoff);
    for (int i = 0; i < eh->e_shnum; ++i) {
        if (sh[i].sh_type != SHT_DYNSYM) continue;
        const Elf64_Shdr& strtab = sh[sh[i].sh_link];
        auto* syms = reinterpret_cast<const Elf64_Sym*>(f.data() + sh[i].sh_offset);
        size_t n = sh[i].sh_size / sizeof(Elf64_Sym);
        for (size_t k = 1; k < n; ++k) {
            DynSym d;
            d.name = f.data() + strtab.sh_offset + syms[k].st_name;
            d.value = syms[k].st_value;
            d.size = syms[k].st_size;
            d.type = ELF64_ST_TYPE(syms[k].st_info);
            d.bind = ELF64_ST_BIND(syms[k].st_info);
            d.defined = syms[k].st_shndx != SHN_UNDEF;
            out.push_back(d);
        }
    }
    return out;
}

TEST(ExportFrame, ExportedSetEqualsTableWithinApiNames)
{
    const auto table = read_lines(TAVS_EXPORTS_TXT);
    const auto api = read_lines(TAVS_API_NAMES_TXT);
    ASSERT_EQ(api.size(), 2157u);
    const std::set<std::string> apiSet(api.begin(), api.end());
    ASSERT_EQ(apiSet.size(), 2157u);

    std::set<std::string> exported;
    for (const auto& s : read_dynsym(TAVS_LIBRARY_PATH))
        if (s.defined && s.bind != STB_LOCAL) exported.insert(s.name);

    const std::set<std::string> tableSet(table.begin(), table.end());
    EXPECT_EQ(tableSet.size(), table.size()) << "a name is listed twice";
    EXPECT_EQ(exported, tableSet);
    for (const auto& n : table) EXPECT_TRUE(apiSet.count(n)) << n << " is not an API name";
    std::printf("exported %zu of 2157\n", exported.size());
}

TEST(ExportFrame, EntriesAreSixteenByteStubsInByteOrder)
{
    const auto table = read_lines(TAVS_EXPORTS_TXT);
    ASSERT_TRUE(std::is_sorted(table.begin(), table.end())); // std::string compares bytes
    std::map<std::string, DynSym> byName;
    for (const auto& s : read_dynsym(TAVS_LIBRARY_PATH))
        if (s.defined) byName[s.name] = s;
    uint64_t prev = 0;
    for (size_t i = 0; i < table.size(); ++i) {
        auto it = byName.find(table[i]);
        ASSERT_NE(it, byName.end()) << table[i];
        EXPECT_EQ(it->second.type, unsigned(STT_FUNC)) << table[i];
        EXPECT_EQ(it->second.value % 16, 0u) << table[i];
        EXPECT_LE(it->second.size, 16u) << table[i];
        if (i > 0) {
            EXPECT_EQ(it->second.value, prev + 16) << table[i] << " does not follow " << table[i - 1];
        }
        prev = it->second.value;
    }
}

TEST(ExportFrame, CoreExportsExactlyItsFourServices)
{
    // libtavs imports the core's four services and exports none of them.
    std::set<std::string> imported;
    for (const auto& s : read_dynsym(TAVS_LIBRARY_PATH))
        if (!s.defined && s.name.rfind("tav", 0) == 0) imported.insert(s.name);
    for (const auto& n : imported)
        EXPECT_TRUE(n == "tavMalloc" || n == "tavFree" || n == "tavAlignPtr" || n == "tavGetEnabledCpuFeatures")
            << n;
    EXPECT_TRUE(imported.count("tavMalloc"));
    EXPECT_TRUE(imported.count("tavFree"));
    EXPECT_TRUE(imported.count("tavGetEnabledCpuFeatures"));
}

} // namespace
