#pragma once

#include <QImage>
#include <QTextBrowser>
#include <map>
#include <string>
#include <vector>

namespace zel {

/// A help text with its headings, links between them ("#name-of-a-heading"), a way back, and a
/// search that takes no notice of case and accents. Pictures that are wider than the view are made
/// smaller, so that nobody scrolls sideways.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  struct Heading {
    QString text;
    int level;  // 1 to 6
    int block;  // its number in the document
  };

  explicit HelpPage(QWidget* parent = nullptr);

  /// Takes a text in Markdown, or in HTML when it begins with a tag, and shows its top. Pictures
  /// are looked for in the folder.
  void take(const std::string& text, const QString& folder);

  const std::vector<Heading>& headings() const { return headings_; }

  /// Puts a heading, counted from 0, at the top of the view; the place before can be gone back to.
  /// Passes over one that is not there.
  void goToHeading(int heading);

  bool canGoBack() const { return !places_.empty(); }
  void goBack();

  /// Marks and shows the next place with these words behind the marked one, or the one before it;
  /// goes on from the other end. False and nothing marked when there is none.
  bool findWords(const QString& words, bool backwards);
  /// The same, beginning at the marked place: for words that are still being typed.
  bool findTyped(const QString& words);

 signals:
  /// A way back came or went.
  void placesChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void follow(const QUrl& link);
  void layOut(const QString& content);
  void listHeadings();
  void loadPictures(const QString& folder);
  void fitPictures();
  bool mark(qsizetype place, qsizetype length);
  void unmark();

  std::vector<Heading> headings_;
  std::map<QString, QImage> pictures_;  // by the name in the text, in their own size
  std::vector<int> places_;             // of the scroll bar, the last one at the end
};

/// The name that links call a heading by: its letters, small, its digits and "_", and "-" for
/// blanks.
QString headingName(const QString& text);

}  // namespace zel
