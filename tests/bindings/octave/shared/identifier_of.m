## The identifier of the error that a function raises; empty if it raises none.
function identifier = identifier_of (f, varargin)
  identifier = "";
  try
    f (varargin{:});
  catch failure
    identifier = failure.identifier;
  end_try_catch
endfunction
