#include "tests/e2e/WalksFile.h"

#include "tests/support/Scratch.h"

#include <sstream>

using Walks = std::map<std::wstring, std::vector<WalkLine>>;

const Walks& AllWalks() {
    static const Walks all = [] {
        Walks walks;
        std::wstring name;
        std::istringstream lines(FileBytes(TestFolder() + L"..\\..\\tests\\e2e\\walks.txt"));
        int number = 0;
        for (std::string bytes; std::getline(lines, bytes);) {
            const std::wstring text = FromUtf8(bytes);
            ++number;
            if (text.starts_with(L"== "))
                name = text.substr(3);
            else if (!text.empty() && text.front() != L'#')
                walks[name].push_back({number, text});
        }
        return walks;
    }();
    return all;
}
