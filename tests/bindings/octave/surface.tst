## The classes beside the page of classes; help; the guide.

%!function sections = read_page ()
%!  page = fileread (fullfile (getenv ("VELLOX_SOURCE"), "docs", "classes.md"));
%!  sections = strsplit (page, "\n## ")(2:end);
%!endfunction

%!function check_listed (name, listed, present)
%!  for each = listed
%!    assert (any (strcmp (each{1}{1}, present)), [name, " has no ", each{1}{1}]);
%!  endfor
%!endfunction

%!test # all classes with all their properties and methods
%! sections = read_page ();
%! assert (numel (sections) >= 47);
%! for section = sections
%!   name = ["vellox.ppt.", strtok(section{1}, "\n")];
%!   class = meta.class.fromName (name);
%!   listed = regexp (section{1}, '^\| `(\w+)` \| .* \|$', "tokens", "lineanchors", "dotexceptnewline");
%!   check_listed (name, listed, properties (name));
%!   listed = regexp (section{1}, '^\| `(\w+)`\(', "tokens", "lineanchors");
%!   check_listed (name, listed, methods (name));
%!   superclass = regexp (strtok (section{1}, "|"), "Derives from (\\w+)[.] ?", "tokens");
%!   if (! isempty (superclass))
%!     assert (class.SuperclassList{1}.Name, ["vellox.ppt.", superclass{1}{1}]);
%!   endif
%!   assert (class.Abstract, any (strfind (section{1}, "The library alone makes")));
%! endfor

%!test # help
%! text = help ("vellox.ppt.Slide");
%! assert (strfind (text, "vellox.ppt.Slide: ") > 0);
%! assert (strfind (text, "add (name: char, text: char)") > 0);
%! assert (strfind (help ("vellox.deck"), "vellox.deck (output, template)") > 0);

%!test # the guide's snippets, in their order, as one script
%! top = getenv ("VELLOX_SOURCE");
%! guide = fileread (fullfile (top, "docs", "octave.md"));
%! snippets = regexp (guide, "\n```octave\n(.*?)\n```", "tokens");
%! assert (numel (snippets) > 5);
%! copyfile (fullfile (top, "examples", "data", "pump-curve.png"), ".");
%! script = fopen ("guide.m", "w");
%! fprintf (script, "1;\n");
%! for snippet = snippets
%!   fprintf (script, "%s\n", snippet{1}{1});
%! endfor
%! fclose (script);
%! evalc ("source ('guide.m')");
%! assert (numel (glob ("*.pptx")) >= 3);
