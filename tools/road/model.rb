# A stand-in for SketchUp behind its Ruby Console: a real interpreter over that part of the model that lines sent by
# Mirelle speak of.
#
#   ruby model.rb SOCKET
#
# Each line on standard input is evaluated, as the console would, and its value written to standard output. Whoever
# connects to the socket may ask: each line there is a Ruby expression, and its value comes back as a line of JSON.
require "json"
require "socket"

module Sketchup
  def self.active_model
    @active_model ||= Model.new
  end

  class Model
    attr_reader :materials, :entities

    def initialize
      @materials = Materials.new
      @entities = Entities.new
    end
  end

  class Materials
    include Enumerable

    def initialize
      @all = []
    end

    # A name that is taken gets a number behind it.
    def add(name)
      raise TypeError, "a name is a text" unless name.is_a?(String)
      free = name
      number = 0
      free = "#{name}#{number += 1}" while self[free]
      @all << Material.new(free)
      @all.last
    end

    def [](key)
      key.is_a?(Integer) ? @all[key] : @all.find { |material| material.name == key }
    end

    def each(&block)
      @all.each(&block)
    end
  end

  class Material
    attr_reader :name, :texture

    def initialize(name)
      @name = name
    end

    # A program for Windows under Wine sees this machine's files on drive Z.
    def texture=(path)
      here = path.start_with?("Z:\\") ? path[2..].tr("\\", "/") : path
      raise ArgumentError, "no such image: #{path}" unless File.file?(here)
      @texture = Texture.new(path)
    end
  end

  class Texture
    attr_reader :filename, :size

    def initialize(filename)
      @filename = filename
    end

    def size=(size)
      raise TypeError, "a size is a number" unless size.is_a?(Numeric)
      @size = size
    end
  end

  class Entities
    include Enumerable

    def initialize
      @all = []
    end

    def add_face(*points)
      three = points.all? { |point| point.is_a?(Array) && point.size == 3 && point.all?(Numeric) }
      raise ArgumentError, "a face needs three points or more" unless points.size >= 3 && three
      @all << Face.new(points)
      @all.last
    end

    def each(&block)
      @all.each(&block)
    end
  end

  class Face
    attr_reader :points, :material, :back_material

    def initialize(points)
      @points = points
    end

    def material=(color)
      @material = Color.from(color)
    end

    def back_material=(color)
      @back_material = Color.from(color)
    end
  end

  class Color
    attr_reader :red, :green, :blue

    def self.from(value)
      value.is_a?(Color) ? value : new(*value)
    end

    def initialize(red, green, blue)
      raise RangeError, "a part of a colour is 0 to 255" unless [red, green, blue].all?(0..255)
      @red, @green, @blue = red, green, blue
    end

    def to_a
      [red, green, blue]
    end
  end
end

# What was typed, and what came of it.
module Typed
  @lines = []
  @errors = []
  class << self
    attr_reader :lines, :errors
  end
end

def short(value)
  case value
  when nil, true, false, Numeric, String, Array then value.inspect
  else "#<#{value.class}>"
  end
end

def evaluate(line)
  Typed.lines << line
  short(TOPLEVEL_BINDING.eval(line, "console"))
rescue ScriptError, StandardError => error
  Typed.errors << "#{error.class}: #{error.message}"
  "Error: #{Typed.errors.last}"
end

# What can't be answered at the moment is an answer too.
def answer(question)
  JSON.generate(TOPLEVEL_BINDING.eval(question, "question"))
rescue ScriptError, StandardError => error
  JSON.generate("#{error.class}: #{error.message}")
end

[$stdin, $stdout].each { |stream| stream.set_encoding(Encoding::UTF_8) }
$stdout.sync = true
turn = Mutex.new
server = UNIXServer.new(ARGV.fetch(0))
Thread.new do
  loop do
    client = server.accept.set_encoding(Encoding::UTF_8)
    client.each_line(chomp: true) do |question|
      client.puts(turn.synchronize { answer(question) })
    end
    client.close
  end
end
$stdin.each_line(chomp: true) { |line| puts(turn.synchronize { evaluate(line) }) }
