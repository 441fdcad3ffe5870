#include "cli/render/render_many.h"

#include <filesystem>
#include <map>
#include <new>
#include <ostream>
#include <set>
#include <sstream>
#include <system_error>

#include <CLI/CLI.hpp>

#include "base/text.h"
#include "cli/console/input_output.h"
#include "cli/render/parallel_jobs.h"
#include "files/absolute_path.h"

namespace zel {
namespace {

#ifdef _WIN32
constexpr bool kNamesIgnoreCase = true;
#else
constexpr bool kNamesIgnoreCase = false;
#endif

[[noreturn]] void refuse(const std::string& complaint) {
  throw CLI::ValidationError("-o", complaint);
}

std::string pictureName(const std::string& file, const std::string& ending) {
  if (isStandardStream(file)) refuse("standard input has no name for a picture in a folder");
  const auto stem = pathOf(file).stem().u8string();
  return std::string(stem.begin(), stem.end()) + '.' + ending;
}

/// The file that a path leads to, whichever way; a file that is not there yet counts too.
std::string fileAt(const std::string& path) {
  std::error_code error;
  const auto found = std::filesystem::weakly_canonical(pathOf(path), error).u8string();
  const std::string name = error ? path : std::string(found.begin(), found.end());
  return kNamesIgnoreCase ? toLower(name) : name;
}

void keepNamesApart(const std::vector<RenderJob>& jobs) {
  std::map<std::string, const RenderJob*> seen;
  for (const RenderJob& job : jobs) {
    const auto [other, is_new] = seen.try_emplace(fileAt(job.out), &job);
    if (!is_new) refuse(other->second->file + " and " + job.file + " would both become " + job.out);
  }
}

/// What is said of a failed job, on one line; empty when it is done.
std::string lineOf(const RenderJob& job, const WantedView& wanted, const Console& console) {
  std::ostringstream said;
  const Console apart{console.in, console.out, said, console.decimal_point};
  int status = kExitDone;
  try {
    status = renderOne(job, wanted, apart, nullptr);
  } catch (const std::bad_alloc&) {
    status = apart.fail("Valores demasiado grandes para operar.");
  }
  if (status == kExitDone) return {};
  std::string message = said.str();
  if (message.ends_with('\n')) message.pop_back();
  return onOneLine(job.file) + ": " + onOneLine(message);
}

/// "[=====>              ] 12/40"
std::string progressBar(std::size_t done, std::size_t all) {
  constexpr std::size_t kWidth = 40;
  const std::size_t filled = kWidth * done / all;
  return '[' + std::string(filled, '=') + std::string(kWidth - filled, ' ') + "] " +
         std::to_string(done) + '/' + std::to_string(all);
}

}  // namespace

void keepDocuments(const std::vector<RenderJob>& jobs) {
  std::set<std::string> documents;
  for (const RenderJob& job : jobs)
    if (!isStandardStream(job.file)) documents.insert(fileAt(job.file));
  for (const RenderJob& job : jobs)
    if (!isStandardStream(job.out) && documents.contains(fileAt(job.out)))
      refuse("the picture of " + job.file + " would replace a document: " + job.out);
}

std::vector<RenderJob> picturesInFolder(const std::vector<std::string>& files,
                                        const std::string& folder, const std::string& ending) {
  std::vector<RenderJob> jobs;
  jobs.reserve(files.size());
  const std::string start = pathOf(folder).has_filename() ? folder + '/' : folder;
  for (const std::string& file : files)
    jobs.push_back({file, start + pictureName(file, ending), ending});
  keepNamesApart(jobs);
  keepDocuments(jobs);
  return jobs;
}

int renderMany(const std::vector<RenderJob>& jobs, const WantedView& wanted,
               const Console& console) {
  Progress progress(console.err);
  ParallelJobs work(jobs.size(), [&](std::size_t i) { return lineOf(jobs[i], wanted, console); });
  int status = kExitDone;
  for (std::size_t i = 0; i < jobs.size(); ++i) {
    const std::string line = work.await(i, [&](std::size_t done) {
      progress.show([&] { return progressBar(done, jobs.size()); });
    });
    if (line.empty()) continue;
    status = kExitFailed;
    progress.clear();
    console.err << line << std::endl;
  }
  return status;
}

}  // namespace zel
