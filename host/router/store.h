// The router's folder. A file in it is whole at any moment: it is written beside its place and then put there.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace router {

// A number of the operating system for an open file, closed with the object.
class File {
public:
    explicit File(int number) : number_(number) {}
    ~File();
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    bool is_open() const { return number_ >= 0; }
    int number() const { return number_; }

private:
    int number_;
};

class Store {
public:
    // The files, by their names in the folder.
    static constexpr char format[] = "format";
    static constexpr char lock[] = "lock";
    static constexpr char running[] = "running.xml";
    static constexpr char candidate[] = "candidate.xml";
    static constexpr char operational[] = "operational.xml";

    // Makes the folder a router's, with what `running` and `operational` shall hold. Throws StoreError.
    static void create(const std::filesystem::path &folder, std::string_view running_text,
                       std::string_view operational_text);

    // Opens the folder, holds it until the object goes, and clears away what a killed process left half written. Throws
    // Locked, StoreError.
    Store(std::filesystem::path folder, std::chrono::milliseconds patience);

    std::string path_of(const char *file) const { return (folder_ / file).string(); }

    // None if there is no such file. Throws StoreError, as all below.
    std::optional<std::string> read(const char *file) const;

    // These are on disk when they return, whole or not at all. What is removed need not be there.
    void write(const char *file, std::string_view text) const;
    void rename(const char *from, const char *to) const;
    void remove(const char *file) const;

private:
    std::filesystem::path folder_;
    File lock_;
};

}  // namespace router
