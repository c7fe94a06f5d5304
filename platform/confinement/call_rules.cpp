#include "platform/confinement/call_rules.h"

#include <array>
#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <linux/prctl.h>
#include <linux/sched.h>
#include <seccomp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace platform {
namespace {

/** Harmless with any arguments: they affect only memory, time, threads of this process, and open files. */
constexpr const char *harmless[] = {
    "read",
    "write",
    "readv",
    "writev",
    "pread64",
    "pwrite64",
    "preadv",
    "pwritev",
    "lseek",
    "_llseek",
    "close",
    "fstat",
    "fstat64",
    "stat",
    "stat64",
    "lstat",
    "lstat64",
    "newfstatat",
    "fstatat64",
    "statx",
    "statfs",
    "statfs64",
    "fstatfs",
    "fstatfs64",
    "access",
    "faccessat",
    "faccessat2",
    "readlink",
    "readlinkat",
    "getdents",
    "getdents64",
    "getcwd",
    "dup",
    "dup2",
    "dup3",
    "pipe",
    "pipe2",
    "eventfd2",
    "memfd_create",
    "ftruncate",
    "ftruncate64",
    "fallocate",
    "fsync",
    "fdatasync",
    "sync_file_range",
    "fadvise64",
    "fadvise64_64",
    "poll",
    "ppoll",
    "ppoll_time64",
    "select",
    "_newselect",
    "pselect6",
    "pselect6_time64",
    "epoll_create1",
    "epoll_ctl",
    "epoll_wait",
    "epoll_pwait",
    "recvmsg",
    "sendmsg",
    "mmap",
    "mmap2",
    "munmap",
    "mprotect",
    "mremap",
    "madvise",
    "mincore",
    "msync",
    "mlock",
    "munlock",
    "brk",
    "membarrier",
    "futex",
    "futex_time64",
    "set_robust_list",
    "get_robust_list",
    "rseq",
    "set_tid_address",
    "arch_prctl",
    "exit",
    "exit_group",
    "restart_syscall",
    "rt_sigaction",
    "rt_sigprocmask",
    "rt_sigreturn",
    "rt_sigpending",
    "sigreturn",
    "sigaltstack",
    "sched_yield",
    "sched_getaffinity",
    "sched_getparam",
    "sched_getscheduler",
    "sched_get_priority_max",
    "sched_get_priority_min",
    "getpriority",
    "getcpu",
    "clock_gettime",
    "clock_gettime64",
    "clock_getres",
    "clock_getres_time64",
    "clock_nanosleep",
    "clock_nanosleep_time64",
    "nanosleep",
    "gettimeofday",
    "time",
    "times",
    "getrusage",
    "getrlimit",
    "ugetrlimit",
    "getpid",
    "gettid",
    "getppid",
    "getpgrp",
    "getpgid",
    "getsid",
    "getuid",
    "getuid32",
    "geteuid",
    "geteuid32",
    "getgid",
    "getgid32",
    "getegid",
    "getegid32",
    "getresuid",
    "getresgid",
    "getgroups",
    "getgroups32",
    "uname",
    "sysinfo",
    "getrandom",
};

/** Calls that no library makes for a legitimate purpose. */
constexpr const char *hostile[] = {"execve", "execveat", "ptrace", "process_vm_readv", "process_vm_writev"};

/** Newer forms of other calls; if the kernel does not know them, callers fall back to the older ones. */
constexpr const char *unknown[] = {"clone3", "openat2", "fchmodat2"};

class CallRules
{
public:
    CallRules() : m_filter(::seccomp_init(SCMP_ACT_ERRNO(EPERM))) {}
    CallRules(const CallRules &) = delete;
    CallRules &operator=(const CallRules &) = delete;
    ~CallRules()
    {
        if (m_filter)
            ::seccomp_release(m_filter);
    }

    bool load() const
    {
        // Searched as a tree, since decoders make many system calls.
        constexpr int tree = 2;
        (void)::seccomp_attr_set(m_filter, SCMP_FLTATR_CTL_OPTIMIZE, tree);
        return m_filter && m_isGood && ::seccomp_load(m_filter) == 0;
    }

    template<size_t count> void add(std::uint32_t action, const char *const (&names)[count])
    {
        for (const char *name : names)
            add(action, name);
    }

    /** Calls that do not exist on this architecture are skipped. */
    template<class... Conditions> void add(std::uint32_t action, const char *name, Conditions... conditions)
    {
        const int call = ::seccomp_syscall_resolve_name(name);
        if (!m_filter || call == __NR_SCMP_ERROR)
            return;
        const std::array<scmp_arg_cmp, sizeof...(conditions)> all = {conditions...};
        const int problem = ::seccomp_rule_add_array(m_filter, action, call, unsigned(all.size()), all.data());
        m_isGood = m_isGood && (problem == 0 || problem == -EDOM); // a call of another architecture
    }

private:
    scmp_filter_ctx m_filter;
    bool m_isGood = true;
};

scmp_arg_cmp is(unsigned argument, std::uint64_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp hasBits(unsigned argument, std::uint64_t mask, std::uint64_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

void allowReading(CallRules &rules)
{
    constexpr std::uint64_t changing = O_ACCMODE | O_CREAT | O_TRUNC | (O_TMPFILE & ~O_DIRECTORY);
    rules.add(SCMP_ACT_ALLOW, "open", hasBits(1, changing, O_RDONLY));
    rules.add(SCMP_ACT_ALLOW, "openat", hasBits(2, changing, O_RDONLY));
    for (const int command : {F_DUPFD, F_GETFD, F_SETFD, F_GETFL, F_SETFL, F_DUPFD_CLOEXEC, F_ADD_SEALS, F_GET_SEALS})
        for (const char *name : {"fcntl", "fcntl64"})
            rules.add(SCMP_ACT_ALLOW, name, is(1, std::uint64_t(command)));
}

/** Threads, but no processes; signals only to itself, such as that of abort(). */
void allowThreads(CallRules &rules)
{
    rules.add(SCMP_ACT_ALLOW, "clone", hasBits(0, CLONE_THREAD, CLONE_THREAD));
    rules.add(SCMP_ACT_ALLOW, "tgkill", is(0, std::uint64_t(::getpid())));
    rules.add(SCMP_ACT_ALLOW, "prlimit64", is(0, 0), is(2, 0)); // asking alone
    for (const int command : {PR_SET_NAME, PR_GET_NAME, PR_GET_NO_NEW_PRIVS, PR_GET_SECCOMP})
        rules.add(SCMP_ACT_ALLOW, "prctl", is(0, std::uint64_t(command)));
}

void endForHostility(CallRules &rules)
{
    rules.add(SCMP_ACT_KILL_PROCESS, hostile);
    for (const int family : {AF_INET, AF_INET6, AF_PACKET})
        rules.add(SCMP_ACT_KILL_PROCESS, "socket", is(0, std::uint64_t(family)));
}

} // namespace

bool restrictCalls()
{
    CallRules rules;
    rules.add(SCMP_ACT_ALLOW, harmless);
    rules.add(SCMP_ACT_ERRNO(ENOSYS), unknown);
    allowReading(rules);
    allowThreads(rules);
    endForHostility(rules);
    return rules.load();
}

} // namespace platform
