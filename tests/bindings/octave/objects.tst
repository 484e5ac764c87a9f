## Objects: who they are, how long they live, what is shown of them.

%!test # one object of Octave for one of the library
%! deck = vellox.deck ("identity.pptx");
%! slide = deck.add ("Title Only");
%! box = vellox.ppt.TextBox ();
%! assert (slide.add (box) == box);
%! assert (slide.Children(end) == box);
%! assert (slide.Children == box, [false true]);
%! assert (slide.Children != box, [true false]);
%! assert (isequal (slide.Children, slide.Children) && ! isequal (slide.Children, box));
%! assert (box.Parent == slide && slide.Parent == deck && deck.Children == slide);
%! assert (box == 3, false);
%! deck.close ();

%!test # children are of their own classes, in one array
%! deck = vellox.deck ("children.pptx");
%! slide = deck.add ("Title and Content");
%! list = slide.Children;
%! assert (class (list(1)), "vellox.ppt.TextBoxPlaceholder");
%! assert (class (list(2)), "vellox.ppt.ContentPlaceholder");
%! assert (size (list), [1 2]);
%! assert (numel (slide.find ("Title")), 1);
%! nothing = slide.find ("no such name");
%! assert (isempty (nothing) && isobject (nothing));
%! list(1).Name = "first";
%! slide.Children(2).Name = "second";
%! assert ({slide.Children.Name}, {"first", "second"});
%! paragraph = slide.Children(1).add ("text");
%! assert (paragraph.Parent == list(1));
%! deck.close ();

%!test # assignments inside of what a property holds
%! p = vellox.ppt.Paragraph ("x");
%! p.Children(1).Bold = true;
%! assert (p.Children(1).Bold, true);
%! p.Style = {vellox.ppt.Bold(false), vellox.ppt.FontColor("red")};
%! p.Style{2}.Value = "navy";
%! assert (p.FontColor, "navy");
%! p.Style = {};
%! assert (p.Bold, []);
%! table = vellox.ppt.Table (magic (2));
%! table.ColSpecs = [vellox.ppt.ColSpec("2cm"), vellox.ppt.ColSpec()];
%! table.ColSpecs(2).Width = "3cm";
%! assert ({table.ColSpecs.Width}, {"2cm", "3cm"});
%! table.ColSpecs = vellox.ppt.ColSpec ("4cm");
%! assert (numel (table.ColSpecs), 1);
%! assert (identifier_of (@() setfield (table, "ColSpecs", {1})), "vellox:ppt_error:invalidPropertyValue");
%! other = vellox.ppt.Paragraph ("y");
%! assert (identifier_of (@() setfield (p, "Children", other.Children)), "vellox:onlyRead");

%!test # what a deck holds outlives its variable
%! deck = vellox.deck ("lifetime.pptx");
%! slide = deck.add ("Title Only");
%! box = vellox.ppt.TextBox ();
%! box.Tag = "mine";
%! slide.add (box);
%! clear box
%! assert (slide.Children(end).Tag, "mine");
%! paragraph = slide.Children(end).add ("text");
%! clear slide
%! assert (show_text (paragraph), "text");
%! assert (class (paragraph.Parent.Parent), "vellox.ppt.Slide");
%! deck.close ();

%!test # delete lets go
%! box = vellox.ppt.TextBox ();
%! holder = {box};
%! delete (box);
%! assert (isvalid (box), false);
%! assert (identifier_of (@() box.Name), "vellox:noObject");
%! assert (identifier_of (@() holder{1}.add ("x")), "vellox:noObject");
%! delete (box);
%! assert (isvalid (vellox.ppt.Null ()), false);
%! p = vellox.ppt.Paragraph ("x");
%! run = p.Children(1);
%! delete (run);
%! assert (isvalid (p.Children(1)) && p.Children(1) != run);

%!test # copies
%! box = vellox.ppt.TextBox ();
%! box.add ("text");
%! box.Children(1).Bold = true;
%! box.Name = "box";
%! twin = copy (box);
%! assert (twin != box && show_text (twin.Children(1)) && isempty (twin.Parent));
%! twin.Children(1).Bold = [];
%! assert (box.Children(1).Bold, true);
%! assert (identifier_of (@() copy (vellox.ppt.MessageDispatcher.getTheDispatcher ())), "vellox:noCopy");

%!test # side by side and below each other
%! a = vellox.ppt.Paragraph ("a");
%! b = vellox.ppt.TextBox ();
%! assert (isequal (size ([a, b]), [1 2]) && [a, b]{2} == b);
%! assert (isequal (size ([a; b; a]), [3 1]));
%! list = [a, {b, "text"}, a.Children];
%! assert (numel (list), 4);
%! assert (list{3}, "text");

%!test # a class of a user's
%! box = OwnBox ("3cm");
%! assert (box.X, "3cm");
%! deck = vellox.deck ("own.pptx");
%! slide = deck.add ("Blank");
%! slide.add (box);
%! assert (class (slide.Children(end)), "OwnBox");
%! assert (slide.Children(end) == box && isa (box, "vellox.ppt.Shape"));
%! assert (box.describe (), "own 3cm");
%! clear box ans
%! assert (class (slide.Children(end)), "vellox.ppt.TextBox");
%! deck.close ();

%!testif ; ! isempty (available_graphics_toolkits ())
%! # figures are printed at the size of their box
%! warning ("off", "all", "local");
%! figure_handle = figure ("visible", "off");
%! plot (1:3);
%! deck = vellox.deck ("figures.pptx");
%! slide = deck.add ("Title and Picture");
%! slide.replace ("Picture", figure_handle);
%! assert (class (slide.find ("Picture")), "vellox.ppt.Picture");
%! assert (class (slide.add (figure_handle)), "vellox.ppt.Picture");
%! slide = deck.add ("Title and Content");
%! place = slide.find ("Content");
%! place.Width = "4in";
%! place.Height = "2in";
%! place.replace (figure_handle);
%! picture = __vellox_figure__ (figure_handle, 4, 2);
%! assert (picture.Width, "600px");
%! close (figure_handle);
%! deck.close ();

%!test # what is shown
%! box = vellox.ppt.TextBox ();
%! box.Name = "Remark";
%! box.add ("The sensor");
%! text = evalc ("box");
%! assert (strfind (text, 'vellox.ppt.TextBox "Remark": "The sensor"') > 0);
%! assert (strfind (text, "Name = Remark") > 0);
%! assert (strfind (evalc ("disp (vellox.ppt.Bold (true))"), "vellox.ppt.Bold true") > 0);
%! p = vellox.ppt.Paragraph ("one");
%! p.append ("two");
%! assert (numel (strsplit (strtrim (evalc ("disp (p.Children)")), "\n")), 2);
%! delete (box);
%! assert (strfind (evalc ("box"), "has ended") > 0);
%! disp (vellox.ppt.Null ());

%!test # an unclosed deck is warned of, a closed one isn't
%! deck = vellox.deck ("closed.pptx");
%! deck.add ("Blank");
%! deck.close ();
%! lastwarn ("", "");
%! clear ans deck
%! [~, identifier] = lastwarn ();
%! assert (identifier, "");
%! evalc ("deck = vellox.deck ('again.pptx'); deck.add ('Blank'); clear ans deck");
%! [~, identifier] = lastwarn ();
%! assert (identifier, "vellox:notClosed");
