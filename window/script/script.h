// Drives the suite by lines: reads commands, has them carried out, writes what happened. Both front ends use
// it.
#pragma once

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

#include "window/platform.h"

// How a front end carries out what a script asks of the player. The plain ones tell the model directly.
class Hands {
 public:
  virtual ~Hands() = default;
  virtual void Click(Control& control);
  virtual void DblClick(Control& control);
  virtual void MouseMove(Control& control);
  virtual void Type(TextBox& box, const std::string& text);
  virtual void Select(Control& list, int entry);
  virtual void Press(Form& form, Key key);
  virtual void Close(Form& form);
  virtual void Resize(Form& form, int width, int height);
  virtual void SetState(Form& form, int state);
  // Presses a button of the message box that stands.
  virtual void PressAnswer(Platform& platform, Answer answer);
  virtual void Advance(int milliseconds) = 0;
  // Writes the window as a picture file; an explanation on failure, else "".
  virtual std::string Screenshot(Form& form, const std::string& file);
};

class Script : public Observer {
 public:
  // What a line may begin with.
  struct Verb {
    std::string_view name, arguments, meaning;
    void (*run)(Script& script, std::string rest);

    // How it is written, with what follows the name.
    std::string Usage() const;
  };
  // All of them, in the order in which `help` tells them.
  static std::span<const Verb> Verbs();

  Script(Platform& platform, Hands& hands, std::ostream& out);

  // Carries out one line, except for the answer "ok". Empty lines and comments are skipped.
  void Execute(const std::string& line);
  // Answers "ok" to the command under way, if it still waits for its answer. To be called when the suite has
  // started, when a handler begins to wait for the player, and after `Execute`; only a command that ended the
  // wait that it was given in is answered further out, when the handler that waited has ended or waits again.
  void AnswerNow();
  // Whether `quit` was asked.
  bool Quit() const { return quit_; }

  void FormLoaded(Form&) override;
  void FormShown(Form&) override;
  void FormHidden(Form&) override;
  void FormUnloaded(Form&) override;
  void PropertyChanged(Control&, Prop) override;
  void SurfaceCleared(PictureBox&) override;
  void SurfaceDrawn(PictureBox&, const Stroke&) override;
  void BoxShown(const MessageBox&) override;
  void Slept(int milliseconds) override;
  void EventsLetThrough() override;
  void WavePlayed(const std::string& path) override;
  void MediaCommanded(const std::string& command) override;
  void BrowserOpened(const std::string& url) override;
  void Ended(const std::string& failure) override;

 private:
  void Say(const std::string& line);

  Platform& platform_;
  Hands& hands_;
  std::ostream& out_;
  bool trace_ = false;
  bool answerOpen_ = true;  // the start itself is answered too
  std::string value_;       // what follows "ok"
  bool quit_ = false;
};
