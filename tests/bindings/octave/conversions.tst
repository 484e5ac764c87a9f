## Values of Octave on their way into the library, and back.

%!function check_content (value, content)
%!  text = vellox.ppt.Text ();
%!  text.Content = value;
%!  assert (text.Content, content);
%!endfunction

%!test # numbers and texts as they are shown
%! check_content ("text", "text");
%! check_content ('single', "single");
%! check_content ("Grüße, 世界 🎈", "Grüße, 世界 🎈");
%! check_content (2.5, 2.5);
%! check_content (single (0.5), 0.5);
%! check_content (true, 1);
%! check_content (pi:pi, pi);
%! check_content (sparse (3), 3);
%! for class = {"int8", "uint8", "int16", "uint16", "int32", "uint32", "int64", "uint64"}
%!   check_content (feval (class{1}, 7), 7);
%! endfor
%! check_content (uint32 (2) ^ 31, 2 ^ 31);
%! check_content (intmax ("uint64"), "18446744073709551615");
%! check_content (intmin ("int64"), "-9223372036854775808");
%! check_content (["two "; "rows"], "two \nrows");

%!test # lists, and lists in lists
%! assert (show_box ({"a", {"b", {"c"}}, "d"}), {1, "a"; 2, "b"; 3, "c"; 1, "d"});
%! assert (show_box ([1 2.5 3]), {1, "1"; 1, "2.5"; 1, "3"});
%! assert (show_box (1:3), {1, "1"; 1, "2"; 1, "3"});
%! assert (show_box (int8 ([1 -2])), {1, "1"; 1, "-2"});
%! assert (show_box (single ([0.5 2])), {1, "0.5"; 1, "2"});
%! assert (show_box ({NaN, NA, -Inf}), {1, "NaN"; 1, "NA"; 1, "-Inf"});
%! assert (show_box ([int64(2)^53+1, int64(1)]), {1, "9007199254740993"; 1, "1"});
%! assert (show_box ([int64(2)^40, 1]), {1, "1099511627776"; 1, "1"});
%! assert (rows (show_box ({"a", [], "b"})), 3);
%! assert (show_box ({vellox.ppt.Paragraph("p", 2)}), {2, "p"});
%! link = vellox.ppt.Paragraph ("object");
%! assert (show_box ([link, "text"]), {1, "object"; 1, "text"});

%!test # nothing adds nothing
%! box = vellox.ppt.TextBox ();
%! for nothing = {[], {}, zeros(0, 3), cell(3, 0), int8([]), true(0, 0), single([])}
%!   box.add (nothing{1});
%! endfor
%! assert (isempty (box.Children));
%! assert (identifier_of (@() box.replace ("")), "");
%! assert (show_text (box.Children), "");

%!test # tables
%! assert (show_table (magic (3)), {"8", "1", "6"; "3", "5", "7"; "4", "9", "2"});
%! assert (show_table (sparse ([1 0; 0 2.5])), {"1", "0"; "0", "2.5"});
%! assert (show_table (eye (2)), {"1", "0"; "0", "1"});
%! assert (show_table (uint8 ([1 2; 3 4])), {"1", "2"; "3", "4"});
%! assert (show_table ([1 NaN; Inf 4]), {"1", "NaN"; "Inf", "4"});
%! assert (show_table ({"a", 1; [], int8(5)}), {"a", "1"; "", "5"});
%! data.run = {"a", "b"};
%! data.flow = [1.25; NaN];
%! data.count = [3 2^40];
%! shown = {"run", "flow", "count"; "a", "1.25", "3"; "b", "NaN", "1099511627776"};
%! assert (show_table (data), shown);
%! data.count = ["x"; "y"];
%! assert (show_table (data)(:,3), {"count"; "x"; "y"});
%! map = containers.Map ({"flow", "head"}, {[1 2], [3; 4]});
%! assert (show_table (map), {"flow", "head"; "1", "3"; "2", "4"});

%!test # what is no table, no list or no content at all
%! make = @(varargin) vellox.ppt.Table (varargin{:});
%! refused = {{}, "text", zeros(2, 2, 2), struct("a", {{1, 2}}, "b", {{1}}), struct(), @sin, containers.Map()};
%! for value = refused
%!   assert (identifier_of (make, value{1}), "vellox:ppt_error:invalidConstructorArg");
%! endfor
%! assert (identifier_of (make, struct ("a", {1, 2, 3})), "vellox:ppt_error:invalidConstructorArg");
%! assert (identifier_of (make, [1i 2; 3 4]), "vellox:complex");
%! assert (identifier_of (@() vellox.ppt.TextBox ().add ({"x", {1i}})), "vellox:complex");
%! box = vellox.ppt.TextBox ();
%! add = @(value) box.add (value);
%! for value = {zeros(2, 2, 2), cell(2, 2, 2)}
%!   assert (identifier_of (add, value{1}), "vellox:ppt_error:invalidAddArg");
%! endfor
%! assert (identifier_of (make, sparse (1e6, 1e6)), "vellox:tooLarge");
%! deep = "x";
%! for i = 1:1100
%!   deep = {deep};
%! endfor
%! assert (identifier_of (add, deep), "vellox:nestedTooDeeply");

%!test # logical properties, levels and unsetting
%! p = vellox.ppt.Paragraph ("x");
%! for value = {2, int8(1), true, single(0.5), sparse(1), [3 0]}
%!   p.Bold = value{1};
%!   assert (p.Bold, true);
%! endfor
%! p.Bold = 0;
%! assert (p.Bold, false);
%! p.Bold = [];
%! assert (p.Bold, []);
%! assert (identifier_of (@() setfield (p, "Bold", "yes")), "vellox:ppt_error:invalidLogicalPropertyValue");
%! p.Level = 3;
%! assert (p.Level, uint32 (3));
%! assert (identifier_of (@() setfield (p, "Level", 10)), "vellox:ppt_error:invalidPropertyValue");
%! p.FontColor = "navy";
%! p.FontColor = {};
%! assert (p.FontColor, []);
%! assert (identifier_of (@() setfield (p, "FontColor", 3)), "Octave:invalid-input-type");

%!test # which overload a number means
%! assert (vellox.ppt.Paragraph (3).Children.Content, 3);
%! assert (vellox.ppt.Paragraph ("a", 2).Level, uint32 (2));
%! assert (numel (vellox.ppt.Table (4).Children), 0);
%! assert (vellox.ppt.Table (int16 (4)).NCols, uint32 (4));
%! assert (identifier_of (@() vellox.ppt.Paragraph ("a", 2.5)), "Octave:invalid-fun-call");

%!test # fields, and arguments by name
%! deck = vellox.deck ("filled.pptx");
%! slide = deck.add ("Title and Content");
%! slide.fill ("Title", "by pairs", "Content", {"a", {"b"}});
%! assert (show_text (slide.find ("Title").Children), "by pairs");
%! assert (numel (slide.find ("Content").Children), 2);
%! slide.fill (containers.Map ("Title", "by a map"));
%! assert (show_text (slide.find ("Title").Children), "by a map");
%! contents.Title = "by a struct";
%! contents.Table.a = [1 2];
%! contents.Table.b = {"x", "y"};
%! slide = deck.add ("Title and Table", contents);
%! table = slide.find ("Table");
%! assert (class (table), "vellox.ppt.Table");
%! assert (numel (table.Children), 3);
%! assert (show_text (table.entry (3, 2).Children), "y");
%! slide = deck.add ("Title and Content");
%! slide.fill ("Title", "only", "drop_empty", true);
%! assert (isempty (slide.find ("Content")));
%! assert (! isempty (identifier_of (@() slide.fill ("No such shape", "x"))));
%! assert (identifier_of (@() slide.fill ("Title")), "Octave:invalid-fun-call");
%! assert (identifier_of (@() slide.fill ("Title", "x", "drop_empty")), "Octave:invalid-fun-call");
%! deck.close ();

%!test # names as they come back
%! deck = vellox.deck ("names.pptx");
%! deck.open ();
%! masters = deck.getMasterNames ();
%! assert (iscellstr (masters) && columns (masters) == 1);
%! assert (any (strcmp (deck.getLayoutNames (masters{1}), "Title and Content")));
%! assert (columns (deck.getTableStyleNames ()), 2);
%! deck.close ();
