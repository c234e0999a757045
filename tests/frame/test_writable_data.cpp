// The module keeps no state of its own: its writable data holds the slot
// table of the entries and the start-up flag, and nothing else of ours.
#include <elf.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<std::string> read_lines(const char* path)
{
    std::ifstream in(path);
    std::vector<std::string> out;
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) out.push_back(line);
    return out;
}

TEST(WritableData, OnlySlotTableAndStartupFlag)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer runtime adds writable data of its own";
#endif
    std::ifstream in(TAVS_LIBRARY_PATH, std::ios::binary);
    std::vector<char> f((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ASSERT_GE(f.size(), sizeof(Elf64_Ehdr));
    auto* eh = reinterpret_cast<const Elf64_Ehdr*>(f.data());
    auto* sh = reinterpret_cast<const Elf64_Shdr*>(f.data() + eh->e_shoff);
    const char* shstr = f.data() + sh[eh->e_shstrndx].sh_offset;

    // Writable sections that stay writable after start-up (RELRO ones do not).
    std::set<int> writable;
    for (int i = 0; i < eh->e_shnum; ++i) {
        std::string name = shstr + sh[i].sh_name;
        if ((sh[i].sh_flags & SHF_WRITE) && (name == ".data" || name == ".bss" || name.rfind(".data.", 0) == 0 ||
                                             name.rfind(".bss.", 0) == 0) &&
            name.rfind(".data.rel.ro", 0) != 0)
            writable.insert(i);
    }
    ASSERT_FALSE(writable.empty());

    // Toolchain start files put these few words there; everything else must be ours.
    const std::set<std::string> toolchain = {"__dso_handle", "completed.0", "__TMC_END__"};
    bool sawTable = false, sawFlag = false;
    const auto names = read_lines(TAVS_EXPORTS_TXT);
    for (int i = 0; i < eh->e_shnum; ++i) {
        if (sh[i].sh_type != SHT_SYMTAB) continue;
        const char* str = f.data() + sh[sh[i].sh_link].sh_offset;
        auto* syms = reinterpret_cast<const Elf64_Sym*>(f.data() + sh[i].sh_offset);
        for (size_t k = 1; k < sh[i].sh_size / sizeof(Elf64_Sym); ++k) {
            if (!writable.count(syms[k].st_shndx)) continue;
            const unsigned type = ELF64_ST_TYPE(syms[k].st_info);
            if (type == STT_SECTION || type == STT_FILE) continue;
            std::string name = str + syms[k].st_name;
            if (name == "tavs_slot_table") {
                sawTable = true;
                EXPECT_EQ(syms[k].st_size, names.size() * 8);
            } else if (name.find("g_cpuFlag") != std::string::npos) {
                sawFlag = true;
                EXPECT_EQ(syms[k].st_size, 4u);
            } else {
                EXPECT_TRUE(toolchain.count(name)) << "writable data: " << name;
            }
        }
    }
    EXPECT_TRUE(sawTable);
    EXPECT_TRUE(sawFlag);
}

} // namespace
