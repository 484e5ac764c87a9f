function result = eq (one, other)
  ## Whether two are the same object, element by element.
  result = __vellox__ ("same", one, other);
endfunction

function result = ne (one, other)
  ## Whether two are different objects, element by element.
  result = ! __vellox__ ("same", one, other);
endfunction

function result = isequal (varargin)
  ## Whether all are the same object, or arrays of the same objects.
  result = __vellox__ ("isequal", varargin{:});
endfunction

function result = isvalid (self)
  ## Whether an object stands for something, element by element.
  result = __vellox__ ("valid", self);
endfunction

function result = horzcat (varargin)
  ## Objects side by side are a cell array.
  result = __vellox__ ("join", 2, varargin{:});
endfunction

function result = vertcat (varargin)
  ## Objects one below the other are a cell array.
  result = __vellox__ ("join", 1, varargin{:});
endfunction

function disp (self)
  ## Shows what tells an object from others, and its properties.
  puts (__vellox__ ("show", self));
endfunction

