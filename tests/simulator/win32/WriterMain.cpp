#include "tests/simulator/win32/WriterMain.h"

#include "tests/simulator/WriterFixture.h"

#include <cstdlib>
#include <filesystem>

#include <windows.h>

namespace simulator {

namespace {

class CWriter : public WriterFixture {
public:
    void Run(const std::filesystem::path& folder, std::size_t firstStep) {
        WriterFixture::SetUp();
        m_deviceFolder = folder;
        WriteForEver(firstStep, [] {
            DWORD written = 0;
            return WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), "+", 1, &written, nullptr) != 0;
        });
    }

private:
    void TestBody() override {}
};

}

bool IsWriter() { return _wgetenv(kWriterFolder) != nullptr; }

int RunWriter() {
    const std::filesystem::path folder = _wgetenv(kWriterFolder);
    // Its temporary folders stay when it is killed, so that they lie where the test tidies up.
    SetEnvironmentVariableW(L"TMP", folder.parent_path().c_str());
    CWriter().Run(folder, static_cast<std::size_t>(_wtoi(_wgetenv(kWriterStep))));
    return 1;
}

}
