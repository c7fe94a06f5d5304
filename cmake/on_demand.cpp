// Loads shared libraries when the first of their functions is called. cmake/on_demand.py makes the tables, and the stubs that
// call this.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

#include <dlfcn.h>

extern "C" {

struct QuorlinLibrary
{
    const char *name;
    void *handle; ///< null before it is loaded
};

struct QuorlinFunction
{
    std::uintptr_t library; ///< row of its library
    const char *name;
};

struct QuorlinData
{
    std::uintptr_t library;
    const char *name;
    void *copy;
    std::size_t bytes;
};

// The table of data ends with a row without a name.
extern QuorlinLibrary quorlin_libraries[];
extern const QuorlinFunction quorlin_functions[];
extern const QuorlinData quorlin_data[];
extern void *quorlin_slots[]; ///< where the stubs jump to, one for each function

void *quorlin_function_on_demand(std::size_t number);
}

namespace {

[[noreturn]] void giveUp()
{
    std::fprintf(stderr, "quorlin: %s\n", ::dlerror());
    std::abort();
}

void *found(void *handle, const char *name)
{
    void *address = ::dlsym(handle, name);
    if (!address)
        giveUp();
    return address;
}

void *loaded(std::uintptr_t row)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    QuorlinLibrary &library = quorlin_libraries[row];
    if (library.handle)
        return library.handle;
    void *handle = ::dlopen(library.name, RTLD_LAZY | RTLD_GLOBAL);
    if (!handle)
        giveUp();
    for (const QuorlinData *data = quorlin_data; data->name; ++data)
        if (data->library == row)
            std::memcpy(data->copy, found(handle, data->name), data->bytes);
    library.handle = handle;
    return handle;
}

} // namespace

void *quorlin_function_on_demand(std::size_t number)
{
    const QuorlinFunction &function = quorlin_functions[number];
    void *address = found(loaded(function.library), function.name);
    __atomic_store_n(&quorlin_slots[number], address, __ATOMIC_RELEASE);
    return address;
}
