#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace tessoro::test {

/// A print server of the test's own on the loopback interface, with one queue that turns what is
/// sent to it into PDF files.
class PrintServer {
 public:
  static constexpr const char* address = "127.0.0.1:8631";

  PrintServer() = default;
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  ~PrintServer() {
    stop();
    for (const QString& file : printed()) {
      if (!before_.contains(file)) output_.remove(file);
    }
    QDir::home().rmdir("PDF");  // only if it is empty
  }

  /// Starts the server; empty, or why it cannot be started.
  std::string start() {
    for (const char* tool : {"cupsd", "lpadmin", "lp", "pdftotext"}) {
      if (QStandardPaths::findExecutable(tool).isEmpty() &&
          QStandardPaths::findExecutable(tool, {"/usr/sbin"}).isEmpty()) {
        return std::string(tool) + " is not installed";
      }
    }
    const QString folder = folder_.path();
    QFile::setPermissions(folder, QFile::Permissions(0x7755));
    for (const char* name : {"spool", "cache", "state", "log", "tmp"}) {
      QDir(folder).mkdir(name);
      QFile::setPermissions(folder + "/" + name, QFile::Permissions(0x7777));
    }
    write("cupsd.conf", QString("Listen %1\nDefaultAuthType None\nWebInterface No\nBrowsing Off\n"
                                "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow from all\n"
                                "</Limit>\n</Policy>\n")
                            .arg(address));
    write("cups-files.conf", QString("ServerRoot %1\nRequestRoot %1/spool\nCacheDir %1/cache\n"
                                     "StateDir %1/state\nTempDir %1/tmp\nErrorLog %1/log/error\n"
                                     "AccessLog %1/log/access\nPageLog %1/log/page\n")
                                 .arg(folder));
    server_.setStandardOutputFile(QProcess::nullDevice());
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start("/usr/sbin/cupsd",
                  {"-f", "-c", folder + "/cupsd.conf", "-s", folder + "/cups-files.conf"});
    if (!server_.waitForStarted()) return "cupsd does not start";
    for (int attempt = 0; attempt < 50; ++attempt) {
      // This renderer keeps the text readable on its way through the printer language.
      if (run("/usr/sbin/lpadmin", {"-p", "TestPDF", "-E", "-v", "cups-pdf:/", "-P",
                                    "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd", "-o",
                                    "pdftops-renderer-default=pdftocairo"}) == 0) {
        run("/usr/sbin/lpadmin", {"-d", "TestPDF"});
        return {};
      }
      QTest::qWait(100);
    }
    return "cupsd does not answer, which it may not without root's rights";
  }
  void stop() {
    server_.terminate();
    server_.waitForFinished();
  }
  void rejectJobs() { run("/usr/sbin/cupsreject", {"TestPDF"}); }

  /// The file that the job has become, once it is done.
  QString printedFile() const {
    for (int attempt = 0; attempt < 100 && !output("lpstat", {"-o"}).isEmpty(); ++attempt) {
      QTest::qWait(100);
    }
    for (const QString& file : printed()) {
      if (!before_.contains(file)) return output_.filePath(file);
    }
    return {};
  }
  static QByteArray output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
  }

 private:
  static int run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished();
    return process.exitCode();
  }
  void write(const QString& name, const QString& text) const {
    QFile file(folder_.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(text.toUtf8());
  }

  QStringList printed() const { return output_.entryList(QDir::Files); }

  QTemporaryDir folder_;
  QProcess server_;
  QDir output_{QDir::home().filePath("PDF")};  ///< where this kind of queue puts its files
  QStringList before_ = printed();
};

}  // namespace tessoro::test
