## Functions that listen to messages.

%!function dispatcher = listen (listener)
%!  dispatcher = vellox.ppt.MessageDispatcher.getTheDispatcher ();
%!  dispatcher.addListener (listener);
%!endfunction

%!function note (event)
%!  global heard
%!  heard{end+1} = event.Message.formatAsText ();
%!endfunction

%!function note_source (event)
%!  global heard
%!  heard{end+1} = event.Message.Source;
%!endfunction

%!function refuse (event)
%!  error ("test:failed", "the listener");
%!endfunction

%!function make_more (event)
%!  global heard
%!  heard{end+1} = vellox.ppt.TextBox ();
%!endfunction

%!test # listeners hear, inside the operation, until they are removed
%! global heard
%! heard = {};
%! dispatcher = listen (@note);
%! dispatcher.addListener (@note);
%! deck = vellox.ppt.Presentation ("listening.pptx");
%! deck.open ();
%! assert (numel (heard), 2);
%! assert (strfind (heard{1}, "template") > 0);
%! dispatcher.removeListener (@note);
%! dispatcher.removeListener (@note);
%! dispatcher.removeListener (@note);
%! dispatcher.dispatch (vellox.ppt.ProgressMessage ("unheard", deck));
%! assert (numel (heard), 2);
%! deck.close ();

%!test # they stay though nobody holds the dispatcher
%! global heard
%! heard = {};
%! listen (@note);
%! clear ans
%! box = vellox.ppt.TextBox ();
%! vellox.ppt.MessageDispatcher.getTheDispatcher ().dispatch (vellox.ppt.WarningMessage ("careful", box));
%! vellox.ppt.MessageDispatcher.getTheDispatcher ().removeListener (@note);
%! assert (numel (heard) == 1 && strfind (heard{1}, "careful") > 0);

%!test # the source is the very object; filters hold back
%! global heard
%! heard = {};
%! dispatcher = listen (@note_source);
%! box = vellox.ppt.TextBox ();
%! dispatcher.dispatch (vellox.ppt.WarningMessage ("x", box));
%! assert (heard{1} == box);
%! dispatcher.Filter.SourceFilter = vellox.ppt.TextBox ();
%! dispatcher.dispatch (vellox.ppt.WarningMessage ("x", box));
%! dispatcher.Filter.SourceFilter = [];
%! dispatcher.Filter.WarningMessagesPass = false;
%! dispatcher.dispatch (vellox.ppt.WarningMessage ("x", box));
%! dispatcher.Filter.WarningMessagesPass = true;
%! assert (numel (heard), 1);
%! dispatcher.removeListener (@note_source);
%! heard = {};

%!test # an error of a listener reaches the caller, once an object that is made is whole
%! dispatcher = listen (@refuse);
%! message = vellox.ppt.WarningMessage ("x", dispatcher);
%! assert (identifier_of (@() dispatcher.dispatch (message)), "test:failed");
%! dispatcher.Filter.DebugMessagesPass = true;
%! assert (identifier_of (@() vellox.ppt.TextBox ()), "test:failed");
%! dispatcher.Filter.DebugMessagesPass = false;
%! dispatcher.removeListener (@refuse);
%! vellox.ppt.TextBox ();

%!test # one that makes objects doesn't hear of them
%! global heard
%! heard = {};
%! dispatcher = listen (@make_more);
%! dispatcher.Filter.DebugMessagesPass = true;
%! box = vellox.ppt.TextBox ();
%! delete (box);
%! clear box
%! dispatcher.Filter.DebugMessagesPass = false;
%! dispatcher.removeListener (@make_more);
%! assert (numel (heard) >= 1 && numel (heard) < 20);
%! heard = {};

%!error <function handle> listen ("note")
