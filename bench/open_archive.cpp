// The yardstick for a whole process: a program that only opens an archive with libzip.
#include <zip.h>

int main(int count, char** arguments) {
    if (count != 2) return 2;
    zip_t* const archive = zip_open(arguments[1], ZIP_RDONLY, nullptr);
    if (archive == nullptr) return 1;
    const bool hasMember = zip_get_num_entries(archive, 0) == 1;
    zip_discard(archive);
    return hasMember ? 0 : 1;
}
