// description_maker FOLDER COUNT SEED FILE...: writes COUNT description files by chance into FOLDER, every
// other one made from one of the given files.
#include "support/description_files.h"
#include "support/random_description.h"
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc < 5) {
        std::fprintf(stderr, "usage: description_maker FOLDER COUNT SEED FILE...\n");
        return 2;
    }
    RandomDescriptionCL random(static_cast<unsigned>(std::atoi(argv[3])));
    for (int i = 0; i < std::atoi(argv[2]); ++i) {
        const std::string bytes
            = i % 2 == 0 ? random.FileM() : random.MutatedM(wholeFile(argv[4 + random.BelowM(argc - 4)]));
        const std::string path = std::string(argv[1]) + "/" + std::to_string(i) + ".dlg";
        FILE* const file = std::fopen(path.c_str(), "wb");
        if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
            std::fprintf(stderr, "cannot write %s\n", path.c_str());
            return 1;
        }
        std::fclose(file);
    }
    return 0;
}
