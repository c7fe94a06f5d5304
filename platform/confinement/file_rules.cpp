#include "platform/confinement/file_rules.h"

#include "platform/descriptors/descriptor.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace platform {
namespace {

// The system headers may be older than the running kernel, so newer constants are defined here.
struct Rules
{
    std::uint64_t files = 0;
    std::uint64_t network = 0;
    std::uint64_t scopes = 0;
};

constexpr std::uint64_t readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr std::uint64_t readFolder = LANDLOCK_ACCESS_FS_READ_DIR;

constexpr std::uint64_t bits(int count)
{
    return (std::uint64_t(1) << count) - 1;
}

/** All rights that a version of the interface supports. */
Rules rulesOf(int version)
{
    // Files: 13 rights in the first version, then moving between folders, truncating, ioctl on devices. Then TCP ports,
    // then abstract sockets and signals.
    constexpr std::array<int, 6> rights = {13, 13, 14, 15, 15, 16};
    constexpr int network = 4;
    constexpr int scopes = 6;
    Rules rules;
    rules.files = bits(rights.at(size_t(std::min(version, int(rights.size()) - 1))));
    rules.network = version >= network ? bits(2) : 0;
    rules.scopes = version >= scopes ? bits(2) : 0;
    return rules;
}

/** A kernel reads as much of the structure as it knows, and rejects the rest unless it is zero. */
Descriptor ruleset(const Rules &rules)
{
    return Descriptor(int(::syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0)));
}

void allow(const Descriptor &set, const QString &path)
{
    const Descriptor item(::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC));
    struct stat status = {};
    if (!item.isOpen() || ::fstat(item.number(), &status) != 0)
        return;
    landlock_path_beneath_attr rule = {};
    rule.allowed_access = S_ISDIR(status.st_mode) ? readFile | readFolder : readFile;
    rule.parent_fd = item.number();
    ::syscall(SYS_landlock_add_rule, set.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
}

} // namespace

bool restrictFiles(const QStringList &readable)
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return false;
    const Descriptor set = ruleset(rulesOf(int(version)));
    if (!set.isOpen())
        return false;
    for (const QString &path : readable)
        allow(set, path);
    return ::syscall(SYS_landlock_restrict_self, set.number(), 0) == 0;
}

bool areFilesRestricted()
{
    const Descriptor top(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return !top.isOpen() && errno == EACCES;
}

} // namespace platform
