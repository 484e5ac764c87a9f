## Calls vellox.ppt in any order with any values, with listeners that do the same. Whatever is wrong must be an error.
##
##     octave-cli octave_calls.m <seed> <number of calls>
##
## To be run with an oct-file that is built with sanitizers; a failure is what they find.
1;

function varargout = state (varargin)
  ## What the caller knows, in one struct.
  persistent known
  if (nargin > 0)
    known = varargin{1};
  else
    varargout{1} = known;
  endif
endfunction

function chosen = draw (list)
  chosen = list{randi (numel (list))};
endfunction

function overloads = read_overloads (file)
  ## The kinds of parameters that the comments of a class file list, by the names of functions.
  overloads = containers.Map ();
  text = fileread (file);
  for found = regexp (text, "## (?:vellox[.]ppt[.])?(\\w+) \\((.*?)\\)", "tokens", "dotexceptnewline")
    name = found{1}{1};
    kinds = {};
    if (! isempty (found{1}{2}))
      kinds = strtrim (regexprep (strsplit (found{1}{2}, ","), "^.*:", ""));
    endif
    present = {};
    if (isKey (overloads, name))
      present = overloads(name);
    endif
    overloads(name) = [present, {kinds}];
  endfor
endfunction

function known = begin (seed)
  rand ("twister", seed);
  folder = fileparts (which ("vellox.deck"));
  if (isempty (folder))
    folder = fullfile (getenv ("OCTAVE_PATH"), "+vellox");
  endif
  known.classes = {};
  known.overloads = containers.Map ();
  for file = glob (fullfile (folder, "+ppt", "*.m"))'
    [~, name] = fileparts (file{1});
    known.classes{end+1} = name;
    known.overloads(name) = read_overloads (file{1});
  endfor
  known.texts = {"x", "", "Title", "Content", "Picture", "Table", "Blank", "Title and Content", "Title and Table", ...
                 "Vellox", "red", "#12ab34", "2in", "18pt", "left", "top", "single", "pass", "o.pptx", "a\0b", ...
                 char([195 40]), ["ab"; "cd"]};
  known.numbers = {0, 1, 2, 3, -1, 10, 2^33, 1.5, NaN, NA, Inf, true, single(2), int8(-3), uint64(18446744073709551615), ...
                   sparse(2), 1i};
  columns.a = [1 2];
  columns.b = {"x", "y"};
  known.others = {[], {}, {"a", {"b", {"c"}}}, {"a", 1; "b", []}, magic(3), zeros(0, 3), zeros(2, 2, 2), 1:3, ...
                  int64([9007199254740993 1]), [NaN 1; 2 Inf], struct(), columns, struct("a", {1, 2}), @sin, ...
                  containers.Map({"a", "b"}, {[1 2], [3 4]}), true(2), speye(3), cell(2, 2, 2), {{}}, single([1 2]), ...
                  uint8([1 2; 3 4])};
  known.dispatcher = vellox.ppt.MessageDispatcher.getTheDispatcher ();
  known.objects = {known.dispatcher, known.dispatcher.Filter};
  known.depth = 0;
endfunction

function keep (value)
  known = state ();
  if (isobject (value) && isa (value, "vellox.ppt.Null"))
    for i = 1:min (numel (value), 4)
      known.objects{end+1} = value(i);
    endfor
    if (numel (value) != 1)
      known.objects{end+1} = value;
    endif
  elseif (iscell (value) && ! isempty (value) && isobject (value{1}))
    known.objects = [known.objects, value(1)];
  endif
  state (known);
endfunction

function value = pick (kind)
  known = state ();
  switch (kind)
    case "char"
      value = draw (known.texts);
    case "uint32 scalar"
      value = draw ({0, 1, 2, uint32(3)});
    case "double scalar"
      value = 0.5;
    case "logical scalar"
      value = rand () < 0.5;
    otherwise
      found = {};
      if (any (strcmp (kind, known.classes)))
        found = known.objects(cellfun (@(o) isa (o, ["vellox.ppt." kind]), known.objects));
      endif
      if (isempty (found))
        found = [known.objects, known.texts, known.numbers, known.others, {known.objects(1:min (3, end))}];
      endif
      value = draw (found);
  endswitch
endfunction

function given = pick_arguments (class, name)
  known = state ();
  given = {};
  kinds = repmat ({"any"}, 1, randi (4) - 1);
  if (isKey (known.overloads, class) && isKey (known.overloads(class), name) && rand () > 0.2)
    kinds = draw (known.overloads(class)(name));
  endif
  for kind = kinds
    given{end+1} = pick (kind{1});
  endfor
endfunction

function make ()
  known = state ();
  name = draw (known.classes);
  given = pick_arguments (name, name);
  keep (feval (["vellox.ppt." name], given{:}));
endfunction

function use ()
  known = state ();
  owner = draw (known.objects);
  class_name = strrep (class (owner), "vellox.ppt.", "");
  if (rand () < 0.5)
    names = properties (owner);
    name = draw (names);
    if (rand () < 0.4)
      owner.(name) = pick ("any");
    else
      value = owner.(name);
      keep (value);
      if (isobject (value) && numel (value) > 1 && rand () < 0.3)
        owner.(name)(randi (numel (value))).Tag = "tagged";
      endif
    endif
  else
    name = draw (methods (owner));
    if (any (strcmp (name, {"addListener", "removeListener", class_name})))
      return;
    endif
    given = pick_arguments (class_name, name);
    if (rand () < 0.5)
      keep (feval (name, owner, given{:}));
    else
      feval (name, owner, given{:});
    endif
  endif
endfunction

function close_deck ()
  ## A deck whose closing is heard of: a table has a style that the template doesn't have.
  deck = vellox.ppt.Presentation ("closed.pptx");
  slide = deck.add ("Title and Table");
  table = slide.find ("Table").replace (vellox.ppt.Table (magic (2)));
  table.StyleName = "No such style";
  slide.add (vellox.ppt.TextBox ());
  cellfun (@keep, {deck, slide, table});
  deck.close ();
endfunction

function drop ()
  known = state ();
  known.objects(randi (numel (known.objects))) = [];
  state (known);
endfunction

function change_listening ()
  known = state ();
  if (rand () < 0.5)
    known.dispatcher.addListener (@hear);
  else
    known.dispatcher.removeListener (@hear);
  endif
  filter = known.dispatcher.Filter;
  filter.DebugMessagesPass = rand () < 0.8;
  filter.SourceFilter = [];
  filter.GlobalFilter = [];
endfunction

function hear (event)
  if (rand () < 0.3)
    switch (randi (3))
      case 1
        keep (event);
      case 2
        keep (event.Message.Source);
    endswitch
    if (rand () < 0.3)
      act ();
    endif
  endif
  if (rand () < 0.05)
    error ("fuzz:listener", "a listener");
  endif
endfunction

function forget_ended ()
  known = state ();
  known.objects = known.objects(cellfun (@(o) all (isvalid (o)), known.objects));
  state (known);
endfunction

function act ()
  known = state ();
  if (known.depth > 3)
    return;
  endif
  known.depth++;
  state (known);
  unwind_protect
    step = find (rand () * 100 < cumsum ([15 1 13 4 2 65]), 1);
    if (numel (known.objects) > 60)
      step = 3;
    elseif (numel (known.objects) < 2)
      step = 1;
    endif
    clear known
    {@make, @close_deck, @drop, @change_listening, @forget_ended, @use}{step} ();
  unwind_protect_cleanup
    known = state ();
    known.depth--;
    state (known);
  end_unwind_protect
endfunction

function main (seed, count)
  warning ("off", "all");
  folder = tempname ();
  mkdir (folder);
  cd (folder);
  state (begin (str2double (seed)));
  refused = 0;
  for i = 1:str2double (count)
    try
      act ();
    catch failure
      refused++;
      if (! isempty (getenv ("OCTAVE_CALLS_SHOW")))
        printf ("%s | %s\n", failure.identifier, strtok (failure.message, "\n"));
      endif
    end_try_catch
  endfor
  printf ("%d calls were refused\n", refused);
  cd ("/");
  confirm_recursive_rmdir (false);
  rmdir (folder, "s");
endfunction

main (argv (){:});
