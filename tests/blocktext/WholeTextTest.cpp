#include "blocktext/WholeText.h"

#include <QBuffer>

#include "TestSupport.h"

namespace quarn::test {
namespace {

class Pipe : public QBuffer {
public:
    bool isSequential() const override { return true; }
};

TEST(WholeText, StaysOnItsDeviceOrIsCutAboveTheLimit) {
    struct Row {
        const char* name;
        bool isPipe;
        qint64 limit;
        bool inMemory;
        QString text;
    };
    const Row rows[] = {
        {"FileWithinTheLimit", false, 12, true, "second third"},
        {"FileAboveTheLimit", false, 11, false, "second third"},
        {"PipeWithinTheLimit", true, 12, true, "second third"},
        {"PipeAboveTheLimit", true, 11, true, "second thir"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Pipe pipe;
        QBuffer file;
        QBuffer& device = row.isPipe ? pipe : file;
        device.setData("first\nsecond third");
        ASSERT_TRUE(device.open(QIODevice::ReadOnly));
        QTextStream source(&device);
        source.readLine();
        blocktext::WholeText whole(source, row.limit);
        EXPECT_EQ(whole.stream().string() != nullptr, row.inMemory);
        EXPECT_EQ(whole.stream().readAll(), row.text);
    }
}

}  // namespace
}  // namespace quarn::test
