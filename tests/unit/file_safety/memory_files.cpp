#include "memory_files.h"

#include <cerrno>

namespace lodge::testing {

namespace {

// A path of the one folder there is, without it.
std::string nameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

void place(std::string& content, std::size_t at, std::string_view bytes) {
    if (content.size() < at + bytes.size()) content.resize(at + bytes.size(), '\0');
    content.replace(at, bytes.size(), bytes);
}

// What a write that the disk never confirmed may have left: nothing, all, its first half, or room without
// bytes.
std::set<std::string> afterWrite(const std::string& content, std::size_t at, const std::string& bytes) {
    std::set<std::string> results{content};
    for (const std::string& kept :
        {bytes, bytes.substr(0, bytes.size() / 2), std::string(bytes.size(), '\0')}) {
        std::string next = content;
        place(next, at, kept);
        results.insert(next);
    }
    return results;
}

} // namespace

std::string MemoryFiles::File::visible() const {
    std::string content = onDisk;
    for (const Write& write : unsynced)
        place(content, write.at, write.bytes);
    return content;
}

std::set<std::string> MemoryFiles::File::afterPowerLoss() const {
    std::set<std::string> contents{onDisk};
    for (const Write& write : unsynced) {
        std::set<std::string> next;
        for (const std::string& content : contents)
            next.merge(afterWrite(content, write.at, write.bytes));
        contents = std::move(next);
    }
    return contents;
}

void MemoryFiles::put(const std::string& name, const std::string& bytes) {
    files.push_back({bytes, {}});
    namesOnDisk[name] = files.size() - 1;
}

MemoryFiles::Names MemoryFiles::visibleNames() const {
    Names names = namesOnDisk;
    for (const NameChange& step : unsyncedNames) {
        for (const auto& [name, file] : step) {
            if (file) {
                names[name] = *file;
            } else {
                names.erase(name);
            }
        }
    }
    return names;
}

Disk MemoryFiles::visible() const {
    Disk disk;
    for (const auto& [name, file] : visibleNames())
        disk[name] = files[file].visible();
    return disk;
}

std::set<Disk> MemoryFiles::afterPowerLoss() const {
    std::set<Disk> disks;
    // Every subset of the changes of names, in their order.
    for (std::size_t chosen = 0; chosen < (std::size_t{1} << unsyncedNames.size()); ++chosen) {
        Names names = namesOnDisk;
        for (std::size_t number = 0; number < unsyncedNames.size(); ++number) {
            if ((chosen >> number & 1U) == 0) continue;
            for (const auto& [name, file] : unsyncedNames[number]) {
                if (file) {
                    names[name] = *file;
                } else {
                    names.erase(name);
                }
            }
        }
        // With every content that each of the named files may have.
        std::set<Disk> partial{Disk{}};
        for (const auto& [name, file] : names) {
            std::set<Disk> next;
            for (const std::string& content : files[file].afterPowerLoss()) {
                for (Disk disk : partial) {
                    disk[name] = content;
                    next.insert(std::move(disk));
                }
            }
            partial = std::move(next);
        }
        disks.merge(partial);
    }
    return disks;
}

void MemoryFiles::change(NameChange step) {
    unsyncedNames.push_back(std::move(step));
    remember();
}

Outcome<int> MemoryFiles::createFile(const std::string& path) {
    if (visibleNames().contains(nameOf(path))) return {-1, EEXIST};
    files.emplace_back();
    change({{nameOf(path), files.size() - 1}});
    handles[++lastHandle] = files.size() - 1;
    return {lastHandle, 0};
}

Outcome<int> MemoryFiles::openFolder(const std::string&) {
    handles[++lastHandle] = std::nullopt;
    return {lastHandle, 0};
}

Outcome<std::size_t> MemoryFiles::write(int handle, std::string_view bytes) {
    File& file = files[handles.at(handle).value()];
    const std::string_view taken = bytes.substr(0, mostBytesAWrite);
    file.unsynced.push_back({file.visible().size(), std::string(taken)});
    remember();
    return {taken.size(), 0};
}

int MemoryFiles::sync(int handle) {
    const auto file = handles.at(handle);
    if (file) {
        files[*file].onDisk = files[*file].visible();
        files[*file].unsynced.clear();
    } else {
        namesOnDisk = visibleNames();
        unsyncedNames.clear();
    }
    remember();
    return 0;
}

int MemoryFiles::close(int handle) { return handles.erase(handle) == 1 ? 0 : EBADF; }

int MemoryFiles::rename(const std::string& from, const std::string& to) {
    const Names names = visibleNames();
    const auto source = names.find(nameOf(from));
    if (source == names.end()) return ENOENT;
    change({{nameOf(to), source->second}, {nameOf(from), std::nullopt}});
    return 0;
}

int MemoryFiles::removeFile(const std::string& path) {
    if (!visibleNames().contains(nameOf(path))) return ENOENT;
    change({{nameOf(path), std::nullopt}});
    return 0;
}

int MemoryFiles::makeFolder(const std::string&) { return EEXIST; }

Outcome<EntryKind> MemoryFiles::kindOf(const std::string& path) {
    return {EntryKind::File, visibleNames().contains(nameOf(path)) ? 0 : ENOENT};
}

Outcome<std::string> MemoryFiles::linkTarget(const std::string&) { return {{}, EINVAL}; }

Outcome<std::vector<std::string>> MemoryFiles::namesIn(const std::string&) {
    std::vector<std::string> names;
    for (const auto& [name, file] : visibleNames())
        names.push_back(name);
    return {names, 0};
}

} // namespace lodge::testing
