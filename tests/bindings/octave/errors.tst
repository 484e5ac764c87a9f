## Errors and warnings, by their identifiers.

%!test # identified errors
%! deck = vellox.ppt.Presentation ("errors.pptx");
%! try
%!   deck.add ("No such layout");
%!   assert (false);
%! catch failure
%!   assert (failure.identifier, "vellox:ppt_error:invalidLayoutName");
%!   assert (strfind (failure.message, "No such layout") > 0);
%! end_try_catch
%! table = vellox.ppt.Table (magic (3));
%! assert (identifier_of (@() table.entry (0, 1)), "vellox:ppt_error:positiveSubscript");
%! assert (identifier_of (@() table.entry (4, 1)), "vellox:ppt_error:badRowSubscript");
%! assert (identifier_of (@() table.row (9)), "vellox:ppt_error:badRowSubscript");
%! assert (identifier_of (@() vellox.ppt.FontColor ("no colour")), "vellox:ppt_error:invalidPropertyValue");
%! assert (! isempty (identifier_of (@() vellox.ppt.Presentation ("no/such/folder/x.pptx").open ())));
%! deck.close ();

%!test # what no overload takes lists what they take
%! deck = vellox.ppt.Presentation ("overloads.pptx");
%! slide = deck.add ("Blank");
%! try
%!   slide.add (1, 2, 3);
%!   assert (false);
%! catch failure
%!   assert (failure.identifier, "Octave:invalid-fun-call");
%!   assert (strfind (failure.message, "(double, double, double)") > 0);
%!   assert (strfind (failure.message, "add (picture: Picture) gives Picture") > 0);
%! end_try_catch
%! assert (identifier_of (@() slide.find ()), "Octave:invalid-fun-call");
%! assert (identifier_of (@() slide.find ("a", "b", "c", "d", "e", "f")), "Octave:invalid-fun-call");
%! assert (identifier_of (@() vellox.ppt.TextBox (1)), "Octave:invalid-fun-call");
%! assert (identifier_of (@() slide.find (slide)), "Octave:invalid-fun-call");
%! deck.close ();

%!error <abstract> vellox.ppt.Slide ()
%!error <the library alone> vellox.ppt.MessageDispatcher ()
%!error <called by the classes> __vellox__ ()
%!error <called by the classes> __vellox__ ("get", 1)
%!error <another version> __vellox__ ("get", 10000, 1, vellox.ppt.TextBox ())
%!error <another version> __vellox__ ("call", 3, 10000, vellox.ppt.TextBox ())
%!error <stands for nothing> __vellox__ ("get", 1, 0, 3)

%!test # warnings, which may be errors
%! deck = vellox.ppt.Presentation ("warned.pptx");
%! deck.open ();
%! lastwarn ("", "");
%! evalc ("deck.OutputPath = 'other.pptx'");
%! [~, identifier] = lastwarn ();
%! assert (identifier, "vellox:ppt_warning:cannotChangeOutputPath");
%! warning ("error", identifier, "local");
%! assert (identifier_of (@() setfield (deck, "OutputPath", "other.pptx")), identifier);
%! deck.close ();

%!test # an array isn't one object
%! deck = vellox.ppt.Presentation ("array.pptx");
%! slide = deck.add ("Title and Content");
%! list = slide.Children;
%! assert (identifier_of (@() __vellox__ ("get", 1, 0, list)), "vellox:notOneObject");
%! deck.close ();
