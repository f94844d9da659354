// Saved pictures against pictures that a person has looked at, byte for byte. A picture that
// differs is written beside the test program; one that is right replaces the one in
// tests/plotter/golden.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <vector>

#include "plotter/GoldenGraphs.h"
#include "plotter/GraphBitmap.h"

namespace vexa {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

void WriteFile(const std::string& path, const Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

TEST(GoldenGraphs, PicturesAreAsTheyWere) {
  const std::vector<test::GoldenGraph> graphs = test::GoldenGraphs();
  EXPECT_GE(graphs.size(), 20u);
  for (const test::GoldenGraph& graph : graphs) {
    const std::string file = std::string(graph.name) + ".bmp";
    const Bytes picture = BitmapFile(DrawPicture(graph.make()));
    if (picture == ReadFile(std::string(VEXA_GOLDEN) + "/" + file)) continue;
    WriteFile(file, picture);
    ADD_FAILURE() << file << " differs; what is drawn now is in the working directory";
  }
}

}  // namespace
}  // namespace vexa
