#include "window/web/describe.h"

#include <algorithm>
#include <cmath>

#include "window/lists.h"

namespace {

void DescribeLetters(Json& json, const Lettering& letters) {
  json.Member("points", letters.FontSize.get());
  if (letters.FontBold) json.Member("bold", true);
}

void DescribeSurface(Json& json, const PictureBox& surface) {
  json.Key("strokes").Open('[');
  for (const Stroke& stroke : surface.strokes)
    json.Open('[')
        .Write(static_cast<int>(stroke.kind))
        .Write(stroke.colour)
        .Write(stroke.kind == Stroke::Kind::Line ? stroke.x1 : stroke.x)
        .Write(stroke.kind == Stroke::Kind::Line ? stroke.y1 : stroke.y)
        .Write(stroke.kind == Stroke::Kind::Line ? stroke.x2 : stroke.radius)
        .Write(stroke.kind == Stroke::Kind::Line ? stroke.y2 : stroke.start)
        .Write(stroke.end)
        .Close(']');
  json.Close(']');
}

void DescribeKind(Json& json, const Control& control) {
  switch (control.kind) {
    case Control::Kind::Label: {
      const auto& label = static_cast<const Label&>(control);
      json.Member("text", label.Caption.get()).Member("colour", label.ForeColor.get());
      DescribeLetters(json, label);
      if (label.BackStyle == 1) json.Member("back", label.BackColor.get());
      if (label.Alignment != 0) json.Member("align", label.Alignment.get());
      if (label.AutoSize) json.Member("auto", true);
      if (label.Lower != 0) json.Member("lower", Pixels(label.Lower));
      if (label.Remark) json.Member("remark", true);
      break;
    }
    case Control::Kind::Image: {
      const auto& image = static_cast<const Image&>(control);
      json.Member("picture", image.Picture.get()).Member("framed", image.BorderStyle == 1);
      break;
    }
    case Control::Kind::Shape: {
      const auto& shape = static_cast<const Shape&>(control);
      json.Member("border", shape.BorderColor.get()).Member("breadth", shape.BorderWidth);
      if (shape.Sunken) json.Member("sunken", true);
      if (shape.Raised) json.Member("raised", true);
      break;
    }
    case Control::Kind::CommandButton: {
      const auto& button = static_cast<const CommandButton&>(control);
      json.Member("text", button.Caption.get());
      if (button.Default) json.Member("default", true);
      break;
    }
    case Control::Kind::TextBox: {
      const auto& box = static_cast<const TextBox&>(control);
      json.Member("text", box.Text.get()).Member("colour", box.ForeColor.get());
      if (box.MultiLine) json.Member("lines", true);
      if (box.Locked) json.Member("locked", true);
      break;
    }
    case Control::Kind::CheckBox: {
      const auto& box = static_cast<const CheckBox&>(control);
      json.Member("text", box.Caption.get()).Member("checked", box.Value == 1);
      break;
    }
    case Control::Kind::OptionButton: {
      const auto& option = static_cast<const OptionButton&>(control);
      json.Member("text", option.Caption.get()).Member("checked", option.Value.get());
      break;
    }
    case Control::Kind::Frame: {
      const auto& frame = static_cast<const Frame&>(control);
      json.Member("text", frame.Caption.get());
      if (frame.Panel) json.Member("panel", true);
      break;
    }
    case Control::Kind::PictureBox:
      DescribeSurface(json, static_cast<const PictureBox&>(control));
      break;
    case Control::Kind::Menu: {
      const auto& menu = static_cast<const Menu&>(control);
      json.Member("text", menu.Caption.get()).Member("checked", menu.Checked.get());
      json.Member("rank", menu.rank).Member("enabled", menu.Enabled.get());
      json.Member("visible", menu.Visible.get());
      break;
    }
    case Control::Kind::Panel: {
      const auto& panel = static_cast<const Panel&>(control);
      json.Member("text", panel.Text.get()).Member("width", Pixels(panel.Width));
      break;
    }
    case Control::Kind::ProgressBar: {
      const auto& bar = static_cast<const ProgressBar&>(control);
      json.Member("min", bar.Min.get()).Member("max", bar.Max.get()).Member("value", bar.Value.get());
      break;
    }
    case Control::Kind::DriveListBox:
    case Control::Kind::DirListBox:
    case Control::Kind::FileListBox: {
      const auto& list = static_cast<const ListControl&>(control);
      json.Key("list").Open('[');
      for (const std::string& entry : list.List.get()) json.Write(entry);
      json.Close(']').Member("entry", list.ListIndex.get());
      break;
    }
    default:
      break;
  }
}

bool IsVisual(Control::Kind kind) {
  return kind != Control::Kind::Menu && kind != Control::Kind::Panel && kind != Control::Kind::Timer;
}

void DescribeVisual(Json& json, const Visual& visual) {
  const int left = Pixels(visual.Left), top = Pixels(visual.Top);
  json.Member("left", left).Member("top", top);
  json.Member("width", Pixels(visual.Left + visual.Width) - left);
  json.Member("height", Pixels(visual.Top + visual.Height) - top);
  json.Member("z", visual.z);
  if (!visual.Visible) json.Member("hidden", true);
  if (!visual.Enabled) json.Member("disabled", true);
  if (!visual.ToolTipText.get().empty()) json.Member("tip", visual.ToolTipText.get());
  if (visual.MousePointer != 0) json.Member("pointer", visual.MousePointer.get());
  if (visual.OnClick || visual.OnDblClick) json.Member("clicks", true);
  if (visual.OnMouseMove) json.Member("moves", true);
}

void DescribeKeys(Json& json, const Guide& guide, int id, const Form& form) {
  json.Key("keys").Open('[');
  for (const KeyRow& row : guide.Keys()) {
    json.Open('{').Member("keys", row.keys).Member("does", row.does).Key("clicks").Open('[');
    for (const KeyClick& click : row.clicks) {
      const Control* const control = form.find(click.control);
      json.Open('[').Write(click.keys).Write(control ? ids::Of(id, *control) : 0).Close(']');
    }
    json.Close(']').Close('}');
  }
  json.Close(']');
}

void DescribeNote(Json& json, int id, const Note& note) {
  json.Open('{').Member("within", ids::Of(id, *note.within)).Member("text", note.text);
  json.Member("left", Pixels(note.left)).Member("top", Pixels(note.top));
  json.Member("width", Pixels(note.width)).Member("height", Pixels(note.height));
  json.Member("align", note.alignment).Member("look", static_cast<int>(note.look)).Close('}');
}

}  // namespace

int ids::Of(int form, const Control& control) {
  if (control.kind == Control::Kind::Form) return form * kPerForm;
  const auto& controls = control.form.Controls();
  return form * kPerForm + 1 + static_cast<int>(std::ranges::find(controls, &control) - controls.begin());
}

Control* ids::Find(Form& form, int id) {
  const int place = id % kPerForm;
  if (place == 0) return &form;
  const auto& controls = form.Controls();
  return place <= static_cast<int>(controls.size()) ? controls[static_cast<size_t>(place) - 1] : nullptr;
}

int Pixels(int twips) { return static_cast<int>(std::lround(twips / 15.0)); }

void Describe(Json& json, int form, const Control& control) {
  json.Open('{').Member("id", ids::Of(form, control)).Member("kind", static_cast<int>(control.kind));
  json.Member("name", control.name);
  if (control.index >= 0) json.Member("index", control.index);
  json.Member("within", ids::Of(form, *control.parent));
  if (IsVisual(control.kind)) DescribeVisual(json, static_cast<const Visual&>(control));
  DescribeKind(json, control);
  json.Close('}');
}

void Describe(Json& json, int id, const Form& form, const Guide* guide) {
  json.Open('{')
      .Member("id", id * ids::kPerForm)
      .Member("name", form.name)
      .Member("text", form.Caption.get());
  json.Member("width", Pixels(form.Width)).Member("height", Pixels(form.Height));
  json.Member("pointer", form.MousePointer.get());
  if (form.Sizable) json.Member("sizable", true);
  if (guide) {
    DescribeKeys(json, *guide, id, form);
    if (guide->IsChoice()) json.Member("choice", true);
    if (const Menu* const menu = guide->KeysMenu()) json.Member("keysMenu", ids::Of(id, *menu));
    if (const Menu* const menu = guide->PlayMenu()) json.Member("playMenu", ids::Of(id, *menu));
    if (const auto place = guide->HelpPlace()) {
      json.Key("help");
      DescribeNote(json, id, *place);
    }
    json.Key("pictures").Open('{');
    for (const Control* control : form.Controls())
      if (const std::string file = guide->Picture(*control); !file.empty())
        json.Member(std::to_string(ids::Of(id, *control)), file);
    json.Close('}').Key("ornaments").Open('[');
    for (const Control* control : form.Controls())
      if (guide->IsOrnament(*control)) json.Write(ids::Of(id, *control));
    json.Close(']').Key("tips").Open('{');
    for (const Control* control : form.Controls())
      if (const std::string tip = guide->ToolTip(*control); !tip.empty())
        json.Member(std::to_string(ids::Of(id, *control)), tip);
    json.Close('}').Key("doors").Open('[');
    for (const GameDoor& door : guide->Doors())
      json.Open('[').Write(ids::Of(id, *door.button)).Write(door.name).Close(']');
    json.Close(']');
  }
  json.Key("controls").Open('[');
  for (const Control* control : form.Controls())
    if (control->kind != Control::Kind::Timer) Describe(json, id, *control);
  json.Close(']').Close('}');
}

void Describe(Json& json, int id, const Form& form, const Guide& guide, const Visual* cursor,
              const Outcome& outcome) {
  json.Open('{').Member("form", id * ids::kPerForm).Member("state", guide.State());
  json.Member("open", guide.InGame()).Member("paused", guide.Paused());
  if (const auto score = guide.Score()) json.Member("score", *score);
  if (const auto& game = outcome.facts) {
    if (game->deal != 0) json.Member("deal", game->deal);
    if (!game->day.empty()) json.Member("day", game->day);
    if (!outcome.result.empty()) json.Member("result", outcome.result);
  }
  if (cursor) json.Member("cursor", ids::Of(id, *cursor));
  if (const Visual* const control = guide.LetsGo()) json.Member("letsGo", ids::Of(id, *control));
  if (const CommandButton* const button = guide.WayOut()) json.Member("wayOut", ids::Of(id, *button));
  json.Key("spots").Open('[');
  for (const Spot& spot : guide.Spots())
    json.Open('[')
        .Write(ids::Of(id, *spot.control))
        .Write(spot.text)
        .Write((spot.playable ? 1 : 0) + (spot.selected ? 2 : 0) + (spot.draws ? 4 : 0))
        .Write(spot.rank ? std::string(1, spot.rank) : std::string())
        .Close(']');
  json.Close(']').Key("notes").Open('[');
  for (const Note& note : guide.Notes()) DescribeNote(json, id, note);
  json.Close(']').Key("says").Open('{');
  std::vector<int> messages;
  for (const Control* control : form.Controls()) {
    if (control->kind != Control::Kind::Label) continue;
    const auto& label = static_cast<const Label&>(*control);
    if (const std::string said = guide.Says(label); !said.empty())
      json.Member(std::to_string(ids::Of(id, label)), said);
    if (guide.IsMessage(label)) messages.push_back(ids::Of(id, label));
  }
  json.Close('}').Key("messages").Open('[');
  for (const int message : messages) json.Write(message);
  json.Close(']').Key("panels").Open('[');
  for (int i = 1; i <= 3; ++i) json.Write(guide.PanelText(i));
  json.Close(']');
  if (const auto place = guide.FirstStepsPlace()) {
    if (!outcome.remark.empty()) json.Member("remark", outcome.remark);
    json.Key("steps").Open('[');
    DescribeNote(json, id, *place);
    for (const std::string& line : guide.FirstSteps()) json.Write(line);
    json.Close(']');
  }
  json.Close('}');
}
