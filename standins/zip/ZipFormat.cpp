#include "ZipFormat.h"

#include "LittleEndian.h"

#include <QByteArrayView>

#include <algorithm>
#include <ctime>
#include <limits>

using archive::append;

namespace format
{

namespace
{

constexpr std::uint16_t plainVersion = 10;
constexpr std::uint16_t deflateVersion = 20;
constexpr std::uint16_t zip64Version = 45;
constexpr std::uint16_t madeByUnix = 3 << 8 | 30;
constexpr std::uint16_t nameIsUtf8 = 1 << 11;

constexpr std::uint32_t dosFolder = 0x10;
constexpr std::uint32_t dosReadOnly = 0x01;

// Local time in steps of two seconds, rounded up, from 1980 to 2107.
std::uint32_t dosTime(std::time_t time)
{
    constexpr std::uint32_t first = 1 << 21 | 1 << 16;
    constexpr std::uint32_t last = 127U << 25 | 12 << 21 | 31 << 16 | 23 << 11 | 59 << 5 | 29;
    const std::time_t even = time + (time & 1);
    std::tm local = {};
    if (!::localtime_r(&even, &local) || local.tm_year > 207)
        return time < 0 ? first : last;
    if (local.tm_year < 80)
        return first;
    const int date = (local.tm_year - 80) << 9 | (local.tm_mon + 1) << 5 | local.tm_mday;
    const int clock = local.tm_hour << 11 | local.tm_min << 5 | local.tm_sec / 2;
    return static_cast<std::uint32_t>(date) << 16 | static_cast<std::uint32_t>(clock);
}

bool fitsUniversalTime(std::time_t time)
{
    return time >= std::numeric_limits<std::int32_t>::min()
        && time <= std::numeric_limits<std::int32_t>::max();
}

// "UT": modification and, in the local header alone, access; "ux": owner and group.
std::string unixFields(const Entry &entry, bool isLocal)
{
    std::string fields;
    const struct stat &status = entry.status;
    if (fitsUniversalTime(status.st_mtime) && fitsUniversalTime(status.st_atime)) {
        fields += "UT";
        append<std::uint16_t>(fields, isLocal ? 9 : 5);
        append<std::uint8_t>(fields, 3);
        append(fields, static_cast<std::uint32_t>(status.st_mtime));
        if (isLocal)
            append(fields, static_cast<std::uint32_t>(status.st_atime));
    }
    fields += "ux";
    append<std::uint16_t>(fields, 11);
    append<std::uint8_t>(fields, 1);
    append<std::uint8_t>(fields, 4);
    append<std::uint32_t>(fields, status.st_uid);
    append<std::uint8_t>(fields, 4);
    append<std::uint32_t>(fields, status.st_gid);
    return fields;
}

std::string zip64Field(const std::string &values)
{
    std::string field;
    if (values.empty())
        return field;
    append<std::uint16_t>(field, 1);
    append(field, static_cast<std::uint16_t>(values.size()));
    return field + values;
}

// The local header needs both sizes or none.
std::string localZip64(const Entry &entry)
{
    std::string values;
    if (entry.hasLongSizes) {
        append(values, entry.size);
        append(values, entry.packedSize);
    }
    return zip64Field(values);
}

std::string centralZip64(const Entry &entry)
{
    std::string values;
    for (std::uint64_t value : {entry.size, entry.packedSize, entry.offset}) {
        if (value >= longSize)
            append(values, value);
    }
    return zip64Field(values);
}

std::uint32_t limited(std::uint64_t value)
{
    return static_cast<std::uint32_t>(std::min(value, longSize));
}

bool isMarkedAsUtf8(const std::string &name)
{
    const bool isAscii = std::ranges::all_of(name, [](char c) { return (c & 0x80) == 0; });
    return !isAscii && QByteArrayView(name).isValidUtf8();
}

// What both headers have in common, from the version on.
void appendCommon(std::string &header, const Entry &entry, bool isLong, std::size_t extraLength)
{
    const std::uint16_t plain = entry.method == Deflated ? deflateVersion : plainVersion;
    append(header, isLong ? zip64Version : plain);
    append<std::uint16_t>(header, isMarkedAsUtf8(entry.name) ? nameIsUtf8 : 0);
    append<std::uint16_t>(header, entry.method);
    append(header, dosTime(entry.status.st_mtime));
    append(header, entry.crc);
    append(header, entry.hasLongSizes ? 0xFFFF'FFFF : limited(entry.packedSize));
    append(header, entry.hasLongSizes ? 0xFFFF'FFFF : limited(entry.size));
    append(header, static_cast<std::uint16_t>(entry.name.size()));
    append(header, static_cast<std::uint16_t>(extraLength));
}

std::uint32_t attributes(const struct stat &status)
{
    std::uint32_t dos = S_ISDIR(status.st_mode) ? dosFolder : 0;
    if (!(status.st_mode & S_IWUSR))
        dos |= dosReadOnly;
    return static_cast<std::uint32_t>(status.st_mode) << 16 | dos;
}

} // namespace

std::string localHeader(const Entry &entry)
{
    const std::string extra = localZip64(entry) + unixFields(entry, true);
    std::string header = "PK\3\4";
    appendCommon(header, entry, entry.hasLongSizes, extra.size());
    return header + entry.name + extra;
}

std::string centralHeader(const Entry &entry)
{
    const std::string zip64 = centralZip64(entry);
    const std::string extra = zip64 + unixFields(entry, false);
    std::string header = "PK\1\2";
    append(header, madeByUnix);
    Entry central = entry; // in which each value that does not fit is long by itself
    central.hasLongSizes = false;
    appendCommon(header, central, !zip64.empty(), extra.size());
    append<std::uint16_t>(header, 0); // comment
    append<std::uint16_t>(header, 0); // volume
    append<std::uint16_t>(header, 0); // not known to be text
    append(header, attributes(entry.status));
    append(header, limited(entry.offset));
    return header + entry.name + extra;
}

std::string endRecords(std::uint64_t count, std::uint64_t offset, std::uint64_t size)
{
    constexpr std::uint64_t longCount = 0xFFFF;
    std::string records;
    if (count >= longCount || offset >= longSize || size >= longSize) {
        records += "PK\6\6";
        append<std::uint64_t>(records, 44); // bytes that follow
        append(records, madeByUnix);
        append(records, zip64Version);
        append<std::uint64_t>(records, 0); // volumes
        append(records, count);
        append(records, count);
        append(records, size);
        append(records, offset);
        records += "PK\6\7";
        append<std::uint32_t>(records, 0);
        append(records, offset + size);
        append<std::uint32_t>(records, 1);
    }
    const auto shortCount = static_cast<std::uint16_t>(std::min(count, longCount));
    records += "PK\5\6";
    append<std::uint32_t>(records, 0); // volumes
    append(records, shortCount);
    append(records, shortCount);
    append(records, limited(size));
    append(records, limited(offset));
    append<std::uint16_t>(records, 0); // comment
    return records;
}

} // namespace format
