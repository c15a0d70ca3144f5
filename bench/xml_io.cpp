// The XML facility alone: a report of 100,000 objects is parsed and saved, beside libxml2's tree and pugixml.
//
// `peak_MB` is the most memory that a process needs which does the same once and nothing else. Saving flushes the file
// to the disk and replaces the old one in one step; the peers do neither, so compare the CPU times.

#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "support/Measuring.h"
#include "support/ReportGenerator.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#ifdef ZEB_HAS_LIBXML2
#include <libxml/parser.h>
#include <libxml/tree.h>
#endif
#ifdef ZEB_HAS_PUGIXML
#include <pugixml.hpp>
#endif

namespace {

namespace fs = std::filesystem;

constexpr int kObjects = 100000;

/// One library: a document that can be read, walked and saved.
struct Library {
  std::string Name;
  std::function<std::shared_ptr<void>(const fs::path&)> Load;
  std::function<std::size_t(void*)> Walk;  // null if the library is not measured at it
  std::function<void(void*, const fs::path&)> Save;
};

void Check(bool succeeded, const char* what) {
  if (succeeded) return;
  std::cerr << "bench_xml_io: " << what << " failed.\n";
  std::exit(1);
}

/// Asks for every text, as a reader of records does.
std::size_t WalkTexts(zebxmln::CXMLDocument& document) {
  std::vector<zebxmln::CXMLNode*> pending = {document.GetRootNode()};
  std::size_t characters = 0;
  while (!pending.empty()) {
    zebxmln::CXMLNode* node = pending.back();
    pending.pop_back();
    characters += std::wcslen(node->GetNodeText());
    for (zebxmln::CXMLNode** child = node->GetChildNodes(); *child != nullptr; ++child)
      pending.push_back(*child);
  }
  return characters;
}

Library Zeb() {
  using zebxmln::CXMLDocument;
  return {"zeb",
          [](const fs::path& path) {
            CXMLDocument* document = zebxmln::CXMLManager::GetInstance().LoadDocument(
                path.wstring().c_str(), true, false, nullptr, false, false);
            return std::shared_ptr<void>(
                document, [](void* loaded) { static_cast<CXMLDocument*>(loaded)->DestroyDocument(); });
          },
          [](void* document) { return WalkTexts(*static_cast<CXMLDocument*>(document)); },
          [](void* document, const fs::path& path) {
            static_cast<CXMLDocument*>(document)->SaveDocumentToFile(path.wstring().c_str(), true);
          }};
}

#ifdef ZEB_HAS_LIBXML2
Library LibXml2() {
  return {"libxml2",
          [](const fs::path& path) {
            xmlDoc* document = xmlReadFile(path.c_str(), nullptr, XML_PARSE_HUGE);
            Check(document != nullptr, "xmlReadFile");
            return std::shared_ptr<void>(document,
                                         [](void* loaded) { xmlFreeDoc(static_cast<xmlDoc*>(loaded)); });
          },
          nullptr,
          [](void* document, const fs::path& path) {
            Check(xmlSaveFile(path.c_str(), static_cast<xmlDoc*>(document)) >= 0, "xmlSaveFile");
          }};
}
#endif

#ifdef ZEB_HAS_PUGIXML
Library PugiXml() {
  return {"pugixml",
          [](const fs::path& path) {
            auto document = std::make_shared<pugi::xml_document>();
            Check(document->load_file(path.c_str()), "pugi::load_file");
            return std::static_pointer_cast<void>(document);
          },
          nullptr,
          [](void* document, const fs::path& path) {
            Check(static_cast<pugi::xml_document*>(document)->save_file(path.c_str(), "  "),
                  "pugi::save_file");
          }};
}
#endif

std::vector<Library> Libraries() {
  std::vector<Library> libraries = {Zeb()};
#ifdef ZEB_HAS_LIBXML2
  libraries.push_back(LibXml2());
#endif
#ifdef ZEB_HAS_PUGIXML
  libraries.push_back(PugiXml());
#endif
  return libraries;
}

void RunOnce(const std::string& name, const fs::path& input) {
  for (const Library& library : Libraries()) {
    if (name != "Parse/" + library.Name && name != "Save/" + library.Name &&
        name != "ParseAndWalk/" + library.Name) {
      continue;
    }
    const std::shared_ptr<void> document = library.Load(input);
    if (name.starts_with("Save")) library.Save(document.get(), input.parent_path() / "once.xml");
    if (name.starts_with("ParseAndWalk")) library.Walk(document.get());
  }
  std::cout << zebbench::PeakMegabytes() << '\n';
}

void Register(const std::string& name, const fs::path& input,
              const std::function<void(benchmark::State&)>& run) {
  const auto measured = [=](benchmark::State& state) {
    run(state);
    const auto size = static_cast<std::int64_t>(fs::file_size(input));
    state.SetBytesProcessed(state.iterations() * size);
    state.counters["peak_MB"] = zebbench::RunAlone("--once " + name + " " + input.string());
  };
  benchmark::RegisterBenchmark(name.c_str(), measured)
      ->Unit(benchmark::kMillisecond)
      ->UseRealTime()
      ->MeasureProcessCPUTime();
}

void RegisterAll(const std::vector<Library>& libraries, const fs::path& input) {
  for (const Library& library : libraries) {
    Register("Parse/" + library.Name, input, [&library, input](benchmark::State& state) {
      for (auto _ : state) benchmark::DoNotOptimize(library.Load(input));
    });
  }
  for (const Library& library : libraries) {
    if (library.Walk == nullptr) continue;
    Register("ParseAndWalk/" + library.Name, input, [&library, input](benchmark::State& state) {
      for (auto _ : state) benchmark::DoNotOptimize(library.Walk(library.Load(input).get()));
    });
  }
  for (const Library& library : libraries) {
    Register("Save/" + library.Name, input, [&library, input](benchmark::State& state) {
      const std::shared_ptr<void> document = library.Load(input);
      for (auto _ : state) library.Save(document.get(), input.parent_path() / "saved.xml");
    });
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], "--once") == 0) {
    RunOnce(argv[2], argv[3]);
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const zebbench::ScratchFolder folder;
  const fs::path input = folder.Path() / "report.xml";
  zebbench::WriteReport(input, kObjects);
  const std::vector<Library> libraries = Libraries();
  RegisterAll(libraries, input);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
