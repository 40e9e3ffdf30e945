#include "pluginfile.h"

#include "pluginrecord.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <gelf.h>
#include <libelf.h>
#include <memory>

namespace testset {

namespace {

const char* const RecordSection = ".qtplugin";
const size_t MaxRecordBytes = 512; ///< bytes; Qt's own have about 120
const char* const EntryPoints[] = {"qt_plugin_query_verification_data", "qt_plugin_instance"};

struct ElfEnd {
    void operator()(Elf* elf) const { elf_end(elf); }
};
typedef std::unique_ptr<Elf, ElfEnd> ElfFile;

bool liesWithin(quint64 offset, quint64 size, quint64 whole)
{
    return offset <= whole && size <= whole - offset;
}

/// The machine that this program is made for; a plug-in for another machine cannot be loaded.
bool isForThisMachine(const GElf_Ehdr& header)
{
    QFile self("/proc/self/exe");
    unsigned char ident[EI_NIDENT + sizeof(Elf64_Half) * 2];
    if (!self.open(QIODevice::ReadOnly)
        || self.read(reinterpret_cast<char*>(ident), sizeof ident) != sizeof ident)
        return false;
    Elf64_Half machine = 0;
    std::memcpy(&machine, ident + EI_NIDENT + sizeof(Elf64_Half), sizeof machine);
    return header.e_ident[EI_CLASS] == ident[EI_CLASS] && header.e_ident[EI_DATA] == ident[EI_DATA]
        && header.e_machine == machine;
}

/// The loader maps the segments and would be killed for reading after the end of a truncated file.
bool isWhole(Elf* elf, const GElf_Ehdr& header, quint64 size)
{
    size_t segments = 0;
    if (elf_getphdrnum(elf, &segments) != 0 || segments == 0)
        return false;
    for (size_t index = 0; index < segments; ++index) {
        GElf_Phdr segment;
        if (!gelf_getphdr(elf, static_cast<int>(index), &segment)
            || !liesWithin(segment.p_offset, segment.p_filesz, size))
            return false;
    }
    // The section headers, by which the record is found, stand last.
    return liesWithin(header.e_shoff, quint64(header.e_shentsize) * header.e_shnum, size);
}

/// The first section of that name, or of that type when the name is null.
Elf_Scn* findSection(Elf* elf, const char* name, GElf_Word type, GElf_Shdr& header)
{
    size_t names = 0;
    if (elf_getshdrstrndx(elf, &names) != 0)
        return nullptr;
    for (Elf_Scn* section = elf_nextscn(elf, nullptr); section;
         section = elf_nextscn(elf, section)) {
        if (!gelf_getshdr(section, &header))
            return nullptr;
        const char* const found = elf_strptr(elf, names, header.sh_name);
        if (name ? found && std::strcmp(found, name) == 0 : header.sh_type == type)
            return section;
    }
    return nullptr;
}

/// Empty if there is no such section.
QByteArray recordOf(Elf* elf)
{
    GElf_Shdr header;
    Elf_Scn* const section = findSection(elf, RecordSection, SHT_NULL, header);
    const Elf_Data* const data = section ? elf_getdata(section, nullptr) : nullptr;
    return data && data->d_buf ? QByteArray(static_cast<const char*>(data->d_buf),
               static_cast<int>(std::min(data->d_size, MaxRecordBytes)))
                               : QByteArray();
}

bool exportsEntryPoints(Elf* elf)
{
    GElf_Shdr header;
    Elf_Scn* const section = findSection(elf, nullptr, SHT_DYNSYM, header);
    Elf_Data* const data = section ? elf_getdata(section, nullptr) : nullptr;
    if (!data || header.sh_entsize == 0)
        return false;
    size_t found = 0;
    for (size_t index = 0; index < header.sh_size / header.sh_entsize; ++index) {
        GElf_Sym symbol;
        if (!gelf_getsym(data, static_cast<int>(index), &symbol))
            return false;
        const char* const name = elf_strptr(elf, header.sh_link, symbol.st_name);
        for (const char* const entryPoint : EntryPoints)
            found += name && symbol.st_shndx != SHN_UNDEF && std::strcmp(name, entryPoint) == 0;
    }
    return found == sizeof EntryPoints / sizeof EntryPoints[0];
}

} // namespace

Outcome checkPluginFile(const QString& file)
{
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        return {PluginMissing, "the file cannot be read"};
    elf_version(EV_CURRENT);
    const ElfFile elf(elf_begin(opened.handle(), ELF_C_READ, nullptr));
    GElf_Ehdr header;
    if (!elf || elf_kind(elf.get()) != ELF_K_ELF || !gelf_getehdr(elf.get(), &header)
        || header.e_type != ET_DYN)
        return {NotAPlugin, "it is no shared library"};
    if (!isForThisMachine(header))
        return {NotAPlugin, "it is a library for another machine"};
    if (!isWhole(elf.get(), header, static_cast<quint64>(opened.size())))
        return {NotAPlugin, "it is a library that was cut short"};
    if (!exportsEntryPoints(elf.get()))
        return {NotAPlugin, "it is a library without a plug-in's entry points"};

    const QByteArray record = recordOf(elf.get());
    const QString fault = recordFault(record.constData(), record.size());
    return fault.isEmpty() ? Outcome() : Outcome{WrongRecord, fault};
}

} // namespace testset
