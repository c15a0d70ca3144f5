#include "support/Libraries.h"

#include "support/Measuring.h"
#include "support/ReportGenerator.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>

#ifdef ZEB_HAS_LIBXML2
#include <libxml/parser.h>
#include <libxml/tree.h>
#endif
#ifdef ZEB_HAS_PUGIXML
#include <pugixml.hpp>
#endif

namespace zebbench {

namespace fs = std::filesystem;

namespace {

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

void RunOnce(const std::string& name, const fs::path& input, const std::vector<Library>& libraries) {
  for (const Library& library : libraries) {
    const std::string work = name.substr(0, name.find('/'));
    if (!name.starts_with(work + '/' + library.Name + '/')) continue;
    const std::shared_ptr<void> document = library.Load(input);
    if (work == "LoadAndWalk") library.Walk(document.get());
    if (work == "Save") library.Save(document.get(), input.parent_path() / "once.xml");
  }
  std::cout << PeakMegabytes() << '\n';
}

void Register(const std::string& name, const fs::path& input,
              const std::function<void(benchmark::State&)>& run) {
  const auto measured = [=](benchmark::State& state) {
    run(state);
    const auto size = static_cast<std::int64_t>(fs::file_size(input));
    state.SetBytesProcessed(state.iterations() * size);
    state.counters["peak_MB"] = RunAlone("--once " + name + " " + input.string());
  };
  benchmark::RegisterBenchmark(name.c_str(), measured)
      ->Unit(benchmark::kMillisecond)
      ->UseRealTime()
      ->MeasureProcessCPUTime();
}

void RegisterAll(const std::vector<Library>& libraries, const fs::path& input, int objects) {
  const auto nameOf = [objects](const char* work, const Library& library) {
    return std::string(work) + '/' + library.Name + '/' + std::to_string(objects);
  };
  for (const Library& library : libraries) {
    Register(nameOf("Load", library), input, [&library, input](benchmark::State& state) {
      for (auto _ : state) benchmark::DoNotOptimize(library.Load(input));
    });
  }
  for (const Library& library : libraries) {
    if (library.Walk == nullptr) continue;
    Register(nameOf("LoadAndWalk", library), input, [&library, input](benchmark::State& state) {
      for (auto _ : state) benchmark::DoNotOptimize(library.Walk(library.Load(input).get()));
    });
  }
  for (const Library& library : libraries) {
    Register(nameOf("Save", library), input, [&library, input](benchmark::State& state) {
      const std::shared_ptr<void> document = library.Load(input);
      for (auto _ : state) library.Save(document.get(), input.parent_path() / "saved.xml");
    });
  }
}

}  // namespace

std::vector<Library> PeerLibraries() {
  std::vector<Library> libraries;
#ifdef ZEB_HAS_LIBXML2
  libraries.push_back(LibXml2());
#endif
#ifdef ZEB_HAS_PUGIXML
  libraries.push_back(PugiXml());
#endif
  return libraries;
}

void Check(bool succeeded, const char* what) {
  if (succeeded) return;
  std::cerr << "bench: " << what << " failed.\n";
  std::exit(1);
}

int MeasureLibraries(int argc, char** argv, const Library& ours, const std::vector<int>& objects) {
  std::vector<Library> libraries = PeerLibraries();
  libraries.insert(libraries.begin(), ours);
  if (argc == 4 && std::strcmp(argv[1], "--once") == 0) {
    RunOnce(argv[2], argv[3], libraries);
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const ScratchFolder folder;
  for (const int count : objects) {
    const fs::path input = folder.Path() / (std::to_string(count) + ".xml");
    WriteReport(input, count);
    RegisterAll(libraries, input, count);
  }
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

}  // namespace zebbench
