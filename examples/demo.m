## The deck of demo.cpp, from GNU Octave: text with levels, a free text box, formats, a picture and a styled table.
##
##     octave demo.m [output.pptx]
1;

function add_title_slide (deck)
  slide = deck.add ("Title Slide");
  slide.replace ("Title", "Pump test bench, week 47");
  slide.replace ("Subtitle", "Flow, head and temperature of three impellers");
endfunction

function add_bullets (deck)
  slide = deck.add ("Title and Content");
  slide.replace ("Title", "What we did");
  ## A cell array in a cell array is one level deeper.
  slide.replace ("Content", {
    "Three impellers, twelve runs each", ...
    {"Speed from 900 to 2900 rpm", "Water at 20 and 60 °C", {"each run ten minutes"}}, ...
    "All runs within the limits of vibration"});
  link = vellox.ppt.Paragraph ("The raw data are at ");
  link.append (vellox.ppt.ExternalLink ("https://example.org/bench/47", "example.org/bench/47"));
  slide.add ("Content", link);
endfunction

function box = make_box (name, x, y, width, height)
  box = vellox.ppt.TextBox ();
  box.Name = name;
  box.X = x;
  box.Y = y;
  box.Width = width;
  box.Height = height;
endfunction

function add_text_box (deck)
  slide = deck.add ("Title Only");
  slide.replace ("Title", "A remark in a place of its own");
  box = make_box ("Remark", "3cm", "6cm", "14cm", "3cm");
  box.add ("The sensor at the outlet was replaced on Tuesday.");
  box.Italic = true;
  slide.add (box);
endfunction

## Appends a run to a paragraph, with a property set.
function append_run (paragraph, text, property, value)
  run = paragraph.append (text);
  run.(property) = value;
endfunction

function add_formats (deck)
  slide = deck.add ("Title Only");
  slide.replace ("Title", "Formats act on all that is below them");
  box = make_box ("Formats", "1.8cm", "4cm", "29cm", "12cm");
  box.BackgroundColor = "whitesmoke";
  box.VAlign = "middle";
  box.FontSize = "20pt";  # of the box: all its text that has no size of its own

  runs = vellox.ppt.Paragraph ("Normal, ");
  append_run (runs, "bold, ", "Bold", true);
  append_run (runs, "italic, ", "Italic", true);
  append_run (runs, "underlined, ", "Underline", "wavyHeavy");
  append_run (runs, "struck, ", "Strike", "single");
  append_run (runs, "tomato, ", "FontColor", "tomato");
  append_run (runs, "#1a6e82, ", "FontColor", "#1a6e82");
  append_run (runs, "larger", "FontSize", "28pt");
  box.add (runs);

  formula = vellox.ppt.Paragraph ("H");
  append_run (formula, "2", "Subscript", true);
  formula.append ("O at 20 °C flows at 3·10");
  append_run (formula, "-2", "Superscript", true);
  formula.append (" m");
  append_run (formula, "3", "Superscript", true);
  formula.append ("/s");
  box.add (formula);

  centred = vellox.ppt.Paragraph ("A centred paragraph in a font of its own");
  centred.HAlign = "center";
  centred.Font = "DejaVu Serif";
  box.add (centred);

  right = vellox.ppt.Paragraph ("All bold but for ");
  right.HAlign = "right";
  right.Bold = true;
  append_run (right, "one word", "Bold", false);  # the nearest format counts
  box.add (right);
  slide.add (box);
endfunction

function add_picture (deck)
  picture = fullfile (fileparts (mfilename ("fullpath")), "data", "pump-curve.png");
  slide = deck.add ("Picture with Caption");
  slide.replace ("Title", "Head over flow");
  slide.replace ("Picture", vellox.ppt.Picture (picture));
  slide.replace ("Caption", ["Measured points and fitted curves at 2900 rpm. Impeller A has the most head, " ...
                             "impeller C the flattest curve."]);
endfunction

function add_table (deck)
  table = vellox.ppt.Table ({
    "Impeller", "Speed in rpm", "Flow in m³/h", "Head in m", "Remark";
    "A", "900", "14.5", "4.0", "";
    "A", "2900", "47.0", "41.8", "highest head";
    "B", "2900", "49.5", "37.6", "";
    "C", "2900", "52.0", "33.1", "repeated on Friday"});
  head = table.row (1);
  head.BackgroundColor = "#17384a";
  head.FontColor = "white";
  entry = table.entry (3, 4);  # rows and columns count from 1
  entry.BackgroundColor = "#ffe2d2";

  columns = cellfun (@(width) vellox.ppt.ColSpec (width), {"4cm", "5cm", "5cm", "5cm", "9cm"},
                     "UniformOutput", false);
  columns{1}.Bold = true;
  for i = 2:4
    columns{i}.HAlign = "right";
  endfor
  table.ColSpecs = columns;

  slide = deck.add ("Title and Table");
  slide.replace ("Title", "Points of best efficiency");
  ## What stands on the slide then is a table of its own, made from this one.
  on_slide = slide.find ("Table").replace (table);
  on_slide.StyleName = "Plain Grid";
endfunction

function main (output = "demo.pptx")
  deck = vellox.ppt.Presentation (output);
  add_title_slide (deck);
  add_bullets (deck);
  add_text_box (deck);
  add_formats (deck);
  add_picture (deck);
  add_table (deck);
  deck.close ();
  disp (deck.OutputPath);
endfunction

main (argv (){:});
